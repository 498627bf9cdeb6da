// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The dialogs' frame with a row of tabs on top: each tab has a page that carries controls, and the frame is
// large enough for every page. The first tab added is selected. Indexes count from 1; an unknown one raises
// 35601. Captions are plain text, "&" is shown as it is. A single tab is a mere heading and takes no keyboard
// focus. User-interface thread; a QObject parent destroys it and its pages.

#include <QWidget>

#include <string>
#include <string_view>

class QTabWidget;

namespace forms {

class CVTab : public QWidget {
    Q_OBJECT
public:
    explicit CVTab(QWidget* parent = nullptr);

    int TabCount() const;
    // The new tab's page, empty and without a layout.
    QWidget& AddTab(std::string_view caption);
    std::string TabCaption(int index) const;
    void SetTabCaption(int index, std::string_view caption);
    QWidget& Page(int index) const;

    int SelectedTab() const;
    void SetSelectedTab(int index);

private:
    int zeroBased(int index) const;

    QTabWidget* m_tabs;
};

} // namespace forms
