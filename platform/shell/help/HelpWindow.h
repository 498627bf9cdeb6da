// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The help window: search and contents at the left, the page at the right, and a toolbar that goes back,
// forward and to the first page and prints. Closing only hides it, so it comes back with its size.
// User-interface thread.

#include "platform/shell/help/HelpBook.h"
#include "platform/shell/help/HelpSurroundings.h"

#include <QMainWindow>

#include <memory>

class QAction;
class QToolBar;

namespace shell::help {

class HelpBrowser;
class HelpNavigation;

class HelpWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit HelpWindow(HelpSurroundings surroundings);

    // Shows the book's page of that name, which is its first page from now on.
    void open(std::shared_ptr<const HelpBook> book, const QString& topic);

private:
    void build();
    QToolBar* addToolBarOf(const HelpTexts& texts, const HelpIcons& icons);
    void addKeys();
    void showPage(const QUrl& address, const QStringList& words);
    void print();

    HelpSurroundings m_surroundings;
    HelpNavigation* m_navigation;
    HelpBrowser* m_browser;
    QUrl m_firstPage;
};

} // namespace shell::help
