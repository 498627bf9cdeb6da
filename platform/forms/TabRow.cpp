// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TabRow.h"

#include <QSignalBlocker>
#include <QStyleOptionTab>

namespace forms {

TabRow::TabRow(QWidget* parent) : QTabBar(parent) {
    connect(this, &QTabBar::tabBarClicked, this, &TabRow::noteClick);
    connect(this, &QTabBar::currentChanged, this, &TabRow::noteSelection);
}

void TabRow::select(int index) {
    const QSignalBlocker quiet(this);
    m_isNoneSelected = index < 0 && count() > 0;
    setCurrentIndex(index);
    update();
}

void TabRow::initStyleOption(QStyleOptionTab* option, int index) const {
    QTabBar::initStyleOption(option, index);
    if (!m_isNoneSelected)
        return;
    option->state &= ~QStyle::State_Selected;
    option->selectedPosition = QStyleOptionTab::NotAdjacent;
}

// Choosing the toolkit's current tab is no change for it.
void TabRow::noteClick(int index) {
    if (m_isNoneSelected && index >= 0 && index == currentIndex())
        noteSelection();
}

void TabRow::noteSelection() {
    m_isNoneSelected = false;
    update();
    Q_EMIT chosen();
}

} // namespace forms
