// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/help/HelpWindow.h"

#include "platform/shell/help/HelpBrowser.h"
#include "platform/shell/help/HelpNavigation.h"

#include <QAction>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>

namespace shell::help {
namespace {

constexpr QSize kFirstSize{920, 620};
constexpr int kNavigationWidth = 300;

QAction* addTool(QToolBar& bar, const QString& name, const QString& text, const QIcon& icon,
                 const QList<QKeySequence>& keys) {
    QAction* action = bar.addAction(icon, text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.first().toString(QKeySequence::NativeText) + u')');
    return action;
}

} // namespace

HelpWindow::HelpWindow(HelpSurroundings surroundings)
    : m_surroundings(std::move(surroundings)), m_navigation(new HelpNavigation(m_surroundings.texts)),
      m_browser(new HelpBrowser) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(m_surroundings.texts.title);
    setWindowIcon(m_surroundings.icons.window);
    build();
    addKeys();
    resize(kFirstSize);
    connect(m_navigation, &HelpNavigation::pageWanted, this, &HelpWindow::showPage);
    connect(m_browser, &HelpBrowser::sourceChanged, m_navigation, &HelpNavigation::showAsCurrent);
    connect(m_browser, &HelpBrowser::outsideWanted, this, m_surroundings.openOutside);
}

void HelpWindow::build() {
    auto* splitter = new QSplitter(this);
    splitter->addWidget(m_navigation);
    splitter->addWidget(m_browser);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kNavigationWidth, kFirstSize.width() - kNavigationWidth});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    m_browser->setObjectName(QStringLiteral("txtPage"));
    addToolBar(addToolBarOf(m_surroundings.texts, m_surroundings.icons));
}

QToolBar* HelpWindow::addToolBarOf(const HelpTexts& texts, const HelpIcons& icons) {
    auto* bar = new QToolBar(texts.title, this);
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu); // its only entry would take the bar away for good
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* back = addTool(*bar, QStringLiteral("miBack"), texts.back, icons.back,
                            {Qt::ALT | Qt::Key_Left, Qt::Key_Back});
    QAction* forward = addTool(*bar, QStringLiteral("miForward"), texts.forward, icons.forward,
                               {Qt::ALT | Qt::Key_Right, Qt::Key_Forward});
    QAction* start =
        addTool(*bar, QStringLiteral("miStart"), texts.start, icons.start, {Qt::ALT | Qt::Key_Home});
    bar->addSeparator();
    QAction* print =
        addTool(*bar, QStringLiteral("miPrint"), texts.print, icons.print, {QKeySequence::Print});
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_browser, &HelpBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &HelpBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, m_browser, &HelpBrowser::backward);
    connect(forward, &QAction::triggered, m_browser, &HelpBrowser::forward);
    connect(start, &QAction::triggered, this, [this] { m_browser->showPage(m_firstPage); });
    connect(print, &QAction::triggered, this, &HelpWindow::print);
    return bar;
}

void HelpWindow::addKeys() {
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &HelpWindow::close);
    for (const QKeySequence& keys : {QKeySequence(QKeySequence::Find), QKeySequence(Qt::Key_F3)})
        connect(new QShortcut(keys, this), &QShortcut::activated, m_navigation, &HelpNavigation::focusSearch);
}

void HelpWindow::open(std::shared_ptr<const HelpBook> book, const QString& topic) {
    m_firstPage = book->find(topic);
    m_browser->setBook(book);
    m_navigation->setBook(std::move(book));
    m_browser->showPage(m_firstPage);
    m_browser->setFocus();
}

void HelpWindow::showPage(const QUrl& address, const QStringList& words) {
    m_browser->showPage(address);
    m_browser->mark(words);
}

void HelpWindow::print() {
    m_surroundings.print(*m_browser->document(), *this);
}

} // namespace shell::help
