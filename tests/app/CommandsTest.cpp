// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the main window itself, by the names of their tools.
#include "tests/app/MainWorld.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>

namespace app {
namespace {

class CommandsTest : public MainWorld {
protected:
    std::vector<std::string> selectedKeys() {
        std::vector<std::string> keys;
        for (int i = 1; i <= list().ListItems().Count(); ++i)
            if (list().ListItems().Item(i).Selected())
                keys.emplace_back(list().ListItems().Item(i).Key());
        return keys;
    }
};

TEST_F(CommandsTest, HideHidesTheWindowAndTheProgramStays) {
    configure({12});
    load();
    window->showWindow();
    window->ab_ToolClick("miFHide");
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->isUnloaded());
}

TEST_F(CommandsTest, ExitUnloadsTheWindowAtOnce) {
    configure({12});
    load();
    window->showWindow();
    window->ab_ToolClick("miFExit");
    EXPECT_TRUE(window->isUnloaded());
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(notificationArea.messages.back(), 2U);
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(CommandsTest, SelectAllSelectsEveryCall) {
    configure({12});
    mailbox(12).append(3);
    load();
    window->ab_ToolClick("miESelectAll");
    EXPECT_EQ(selectedKeys(), (std::vector<std::string>{"KC3", "KC2", "KC1"}));
}

TEST_F(CommandsTest, SelectAllOnAnEmptyListDoesNothing) {
    configure({12});
    mailbox(12);
    load();
    window->ab_ToolClick("miESelectAll");
    EXPECT_TRUE(selectedKeys().empty());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(CommandsTest, FirstCommandOfANameRunsAndTheRestAreSkipped) {
    std::vector<int> ran;
    Commands commands(errorHandler);
    commands.add("miFExit", [&] { ran.push_back(1); });
    commands.add("miFExit", [&] { ran.push_back(2); });
    commands.add("mifExit", [&] { ran.push_back(3); });
    commands.ab_ToolClick("miFExit");
    commands.ab_ToolClick("mifExit");
    commands.ab_ToolClick("mifexit");
    EXPECT_EQ(ran, (std::vector<int>{1, 3}));
}

TEST_F(CommandsTest, ClickOnFindOrFindNextDoesNothing) {
    configure({12});
    mailbox(12).append(2);
    load();
    window->showWindow();
    for (const char* name : {"miEFind", "miEFindNext"})
        window->ab().Bands("mnuEdit").Tools(name).action()->trigger();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(selectedKeys().empty());
    EXPECT_TRUE(messageBoxes.boxes.empty());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(CommandsTest, UnknownNamesDoNothing) {
    configure({12});
    mailbox(12).append(1);
    load();
    window->showWindow();
    for (const char* name : {"miEFind", "miEFindNext", "nothing", "", "mifhide", "MIFEXIT", "miFHide "}) {
        window->ab_ToolClick(name);
        EXPECT_TRUE(window->isVisible()) << name;
    }
    EXPECT_TRUE(selectedKeys().empty());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(CommandsTest, CopyGivesHeaderEmptyLineAndTheSelectedRows) {
    configure({12});
    mailbox(12).append({"A1", "tab\tin name", 3});
    mailbox(12).append({"A2", "left out", 4});
    mailbox(12).append({"A3", "last", 0});
    load();
    list().ListItems().Item(1).SetSelected(true);
    list().ListItems().Item(3).SetSelected(true);
    window->ab_ToolClick("miECopy");
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "\tDate\tCaller ID\tCaller Name\tMessage\t\r\n\r\n"
              "\t2023-03-15 12:00:00\t+4930123456\tlast\t0s\t\r\n"
              "\t2023-03-15 12:00:00\t+4930123456\ttab in name\t3s\t\r\n");
}

TEST_F(CommandsTest, CopyTakesAHundredThousandCalls) {
    constexpr int kCalls = 100'000;
    configure({12});
    mailbox(12).append(1);
    load();
    list().ListItems().Clear();
    for (int i = 1; i <= kCalls; ++i)
        list().ListItems().Add("KX" + std::to_string(i), "").SetSubItems(1, "caller " + std::to_string(i));
    window->ab_ToolClick("miESelectAll");
    window->ab_ToolClick("miECopy");
    const QString text = QApplication::clipboard()->text();
    EXPECT_EQ(text.count(u"\r\n"_qs), kCalls + 2);
    EXPECT_TRUE(text.endsWith(u"\tcaller 100000\t\t\t\t\r\n"_qs));
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
