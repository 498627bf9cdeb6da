// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the user's clicks on the list and on the tabs do in the real window.
#include "app/ListEvents.h"

#include "tests/app/MainWorld.h"
#include "tests/app/ScriptedMain.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QTreeView>

namespace app {
namespace {

class ListEventsTest : public MainWorld {
protected:
    // Two mailboxes, 12 with the calls A1 (with a message) and A2 (without), 15 with B1.
    void show() {
        configure({12, 15});
        mailbox(12).append({"A1", "Anna", 7});
        mailbox(12).append({"A2", "Bert", 0});
        mailbox(15).append({"B1", "Carl", 7});
        load();
        window->showWindow();
        QObject::connect(&*window, &frmMain::ItemChanged, &*window,
                         [this](const auto&, const std::string& callID) { told.push_back(callID); });
    }
    QTreeView& view() { return *list().findChild<QTreeView*>(); }
    void click(int row, Qt::MouseButton button = Qt::LeftButton) {
        const QPoint at = view().visualRect(view().model()->index(row - 1, 1)).center();
        QTest::mouseClick(view().viewport(), button, {}, at);
    }
    void clickTab(int index) {
        auto& bar = *tabStrip().findChild<QTabBar*>();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(index - 1).center());
    }
    bool mayPlay() { return window->findChild<QToolBar*>()->actions().at(2)->isEnabled(); }
    static QStringList contextMenu() {
        QStringList texts;
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
            for (const QAction* action : menu->actions())
                texts << action->text();
        return texts;
    }

    std::vector<std::string> told;
};

TEST_F(ListEventsTest, ClickTellsTheCallAndEnablesPlayForAMessage) {
    show();
    click(2);
    EXPECT_EQ(told.back(), "A1");
    EXPECT_TRUE(mayPlay());
    click(1);
    EXPECT_EQ(told.back(), "A2");
    EXPECT_FALSE(mayPlay());
}

TEST_F(ListEventsTest, KeyTellsTheCallAndEnablesPlayForAMessage) {
    show();
    click(1);
    told.clear();
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(told, (std::vector<std::string>{"A1"}));
    EXPECT_TRUE(mayPlay());
}

TEST_F(ListEventsTest, ClickOnTheEmptyPartTellsThatNoCallIsSelected) {
    show();
    click(2);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().viewport()->rect().bottomLeft());
    EXPECT_EQ(told.back(), "-1");
    EXPECT_FALSE(mayPlay());
}

TEST_F(ListEventsTest, RightClickOpensTheContextMenu) {
    show();
    EXPECT_TRUE(contextMenu().isEmpty());
    click(1, Qt::RightButton);
    EXPECT_EQ(contextMenu(), (QStringList{u"Play"_qs, QString(), u"Show Details"_qs}));
    QApplication::activePopupWidget()->close();
}

TEST_F(ListEventsTest, RightClickOnTheEmptyPartOpensTheContextMenuToo) {
    show();
    QTest::mouseClick(view().viewport(), Qt::RightButton, {}, view().viewport()->rect().bottomLeft());
    EXPECT_EQ(contextMenu(), (QStringList{u"Play"_qs, QString(), u"Show Details"_qs}));
    QApplication::activePopupWidget()->close();
}

TEST_F(ListEventsTest, OtherButtonsOpenNoMenu) {
    show();
    click(1);
    click(1, Qt::MiddleButton);
    EXPECT_TRUE(contextMenu().isEmpty());
}

TEST_F(ListEventsTest, ClickOnATabLoadsItsMailboxAndDropsTheConnection) {
    show();
    click(2);
    const auto before = window->state().currentConnection;
    ASSERT_NE(before, nullptr);
    clickTab(2);
    EXPECT_EQ(column(3), (std::vector<std::string>{"Carl"}));
    EXPECT_EQ(window->state().currentConnection, nullptr);
    EXPECT_EQ(told.back(), "-1");
    EXPECT_FALSE(mayPlay());
    click(1);
    EXPECT_EQ(told.back(), "B1");
    EXPECT_NE(window->state().currentConnection, before);
}

TEST_F(ListEventsTest, WithoutASelectedTabTheListIsEmptyAndNoCallIsTold) {
    show();
    tabStrip().SetSelectedItem(0);
    window->LoadList();
    EXPECT_EQ(list().ListItems().Count(), 0);
    EXPECT_EQ(told.back(), "-1");
}

TEST_F(ListEventsTest, WithoutASelectedTabASelectedItemIsNotTold) {
    show();
    click(2);
    tabStrip().SetSelectedItem(0);
    window->ChangeItem();
    EXPECT_TRUE(list().SelectedItem().has_value());
    EXPECT_EQ(told.back(), "-1");
}

TEST(TabStripClick, GoesOnAfterAStatementThatFails) {
    errors::RecordingErrorHandler errorHandler;
    QMainWindow window;
    forms::CommandBar ab{window};
    forms::ListView list;
    forms::TabStrip tabStrip;
    MainState state;
    const ShareAccess shareAccess;
    const std::vector<std::string> statements{"LoadList", "ChangeItem", "UpdateButtonStates"};
    for (const std::string& failing : statements) {
        ScriptedMain main;
        main.failing = failing;
        const ListEvents events({errorHandler, list, tabStrip, ab, state, main, shareAccess});
        Q_EMIT tabStrip.Click();
        for (const std::string& statement : statements)
            EXPECT_EQ(main.did(statement), statement != failing) << statement << " after " << failing;
    }
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
