// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the main window itself, by the names of their tools.
#include "tests/app/MainWorld.h"

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

} // namespace
} // namespace app
