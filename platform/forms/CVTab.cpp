// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/CVTab.h"

#include "platform/basic/RuntimeError.h"
#include "platform/forms/Text.h"

#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace forms {

CVTab::CVTab(QWidget* parent) : QWidget(parent), m_tabs(new QTabWidget(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_tabs);
    m_tabs->tabBar()->setElideMode(Qt::ElideNone);
}

int CVTab::TabCount() const {
    return m_tabs->count();
}

QWidget& CVTab::AddTab(std::string_view caption) {
    auto* page = new QWidget;
    m_tabs->addTab(page, QString());
    SetTabCaption(TabCount(), caption);
    const Qt::FocusPolicy focus = TabCount() > 1 ? Qt::TabFocus : Qt::NoFocus;
    m_tabs->setFocusPolicy(focus);
    m_tabs->tabBar()->setFocusPolicy(focus);
    return *page;
}

std::string CVTab::TabCaption(int index) const {
    return fromQString(m_tabs->widget(zeroBased(index))->accessibleName());
}

// The page is known to assistive programs under its tab's caption.
void CVTab::SetTabCaption(int index, std::string_view caption) {
    const int position = zeroBased(index);
    m_tabs->setTabText(position, withoutAccessKeys(caption));
    m_tabs->widget(position)->setAccessibleName(toQString(caption));
}

QWidget& CVTab::Page(int index) const {
    return *m_tabs->widget(zeroBased(index));
}

int CVTab::SelectedTab() const {
    return m_tabs->currentIndex() + 1;
}

void CVTab::SetSelectedTab(int index) {
    m_tabs->setCurrentIndex(zeroBased(index));
}

int CVTab::zeroBased(int index) const {
    if (index < 1 || index > TabCount())
        throw basic::RuntimeError(basic::kElementNotFound);
    return index - 1;
}

} // namespace forms
