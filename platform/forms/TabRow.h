// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The toolkit's row of tabs, which can be without a selected one as well: the toolkit's always has a current
// tab. The user ends that by choosing any tab, the current one included. User-interface thread; a QObject
// parent destroys it.

#include <QTabBar>

namespace forms {

class TabRow : public QTabBar {
    Q_OBJECT
public:
    explicit TabRow(QWidget* parent);

    // -1 for none.
    int selected() const { return m_isNoneSelected ? -1 : currentIndex(); }
    // Not chosen by the user.
    void select(int index);

Q_SIGNALS:
    // The user selected a tab that was not.
    void chosen();

protected:
    void initStyleOption(QStyleOptionTab* option, int index) const override;

private:
    void noteClick(int index);
    void noteSelection();

    bool m_isNoneSelected = false;
};

} // namespace forms
