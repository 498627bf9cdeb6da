// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/TrayMenu.h"

namespace tray {
namespace {

// A separator has no text of its own: styles would draw it.
void setCaption(QAction& element, const QString& caption) {
    const bool isSeparator = caption == u"-";
    element.setSeparator(isSeparator);
    element.setText(isSeparator ? QString() : caption);
}

QString captionOf(const QAction& element) {
    return element.isSeparator() ? u"-"_qs : element.text();
}

QString keyOf(const QAction& element) {
    return element.data().toString();
}

} // namespace

TrayMenu::TrayMenu() {
    m_mnuPopup.setObjectName(u"mnuPopup"_qs);
    appendElement()->setVisible(false);
}

std::int16_t TrayMenu::upperBound() const {
    return static_cast<std::int16_t>(m_mnuPopup.actions().size() - 1);
}

QAction* TrayMenu::element(std::int16_t index) const {
    return m_mnuPopup.actions().at(index);
}

QAction* TrayMenu::appendElement() {
    QAction* action = m_mnuPopup.addAction(QString());
    action->setObjectName(u"mnuSysTray"_qs);
    connect(action, &QAction::triggered, this, [this, action] {
        Q_EMIT clicked(static_cast<std::int16_t>(m_mnuPopup.actions().indexOf(action)), keyOf(*action));
    });
    return action;
}

std::int16_t TrayMenu::add(const QString& caption, const QString& key) {
    QAction* action = m_isUsed ? appendElement() : element(0);
    m_isUsed = true;
    setCaption(*action, caption);
    action->setData(key);
    action->setVisible(true);
    return static_cast<std::int16_t>(m_mnuPopup.actions().indexOf(action));
}

void TrayMenu::remove(std::int16_t index) {
    if (!isValid(index))
        return;
    if (index == 0) {
        setCaption(*element(0), QString());
        return;
    }
    for (std::int16_t later = index; later < upperBound(); ++later) {
        const QAction& source = *element(static_cast<std::int16_t>(later + 1));
        setCaption(*element(later), captionOf(source));
        element(later)->setData(source.data());
    }
    element(upperBound())->deleteLater(); // it may be the item being clicked
    m_mnuPopup.removeAction(element(upperBound()));
}

void TrayMenu::setEnabled(std::int16_t index, bool isEnabled) {
    if (isValid(index))
        element(index)->setEnabled(isEnabled);
}

void TrayMenu::markDefault(std::int16_t index) {
    m_mnuPopup.setDefaultAction(isValid(index) ? element(index) : nullptr);
}

} // namespace tray
