// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the window tells those who wait for servers, and what it leaves for after a wait.
#include "tests/app/MainWorld.h"

#include <QTest>

namespace app {
namespace {

class ShareAccessTest : public MainWorld {
protected:
    ShareAccessTest() {
        shareAccess.afterWaiting = [this](std::function<void()> work) {
            if (isWaiting)
                later.push_back(std::move(work));
            else
                work();
        };
        shareAccess.userActs = [this] { ++acts; };
        shareAccess.userLogsOn = [this] { ++logOns; };
        shareAccess.endWaits = [this] { ++ends; };
    }
    void SetUp() override {
        configure({12});
        mailbox(12).append(2);
        load();
        acts = logOns = 0;
    }

    bool isWaiting = false;
    std::vector<std::function<void()>> later;
    int acts = 0;
    int logOns = 0;
    int ends = 0;
};

TEST_F(ShareAccessTest, TicksInsideOfAWaitPollRightAfterIt) {
    mailbox(12).append(1);
    isWaiting = true;
    tick();
    tick();
    EXPECT_EQ(popup(), nullptr);
    isWaiting = false;
    int polls = 0; // that found new calls
    QObject::connect(&*window, &frmMain::ItemChanged, &*window, [&] {
        ++polls;
        mailbox(12).append(1);
    });
    for (const auto& work : later)
        work();
    EXPECT_EQ(polls, 1);
    EXPECT_EQ(popupText(), "You have  1  new calls");
}

TEST_F(ShareAccessTest, ATickThatIsToEndTheProgramWaitsForNobody) {
    isWaiting = true;
    window->state().exitRequested = true;
    tick();
    EXPECT_TRUE(window->isUnloaded());
    EXPECT_EQ(ends, 1);
}

TEST_F(ShareAccessTest, ACommandInsideOfAWaitRunsAfterIt) {
    isWaiting = true;
    window->ab_ToolClick("miESelectAll");
    EXPECT_FALSE(list().ListItems().Item(1).Selected());
    ASSERT_EQ(later.size(), 1U);
    later[0]();
    EXPECT_TRUE(list().ListItems().Item(1).Selected());
}

TEST_F(ShareAccessTest, ACommandOfAnUnloadedWindowDoesNothing) {
    window->unload(UnloadMode::Code);
    acts = 0;
    window->ab_ToolClick("miFHide");
    EXPECT_EQ(acts, 0);
}

TEST_F(ShareAccessTest, EveryCommandIsTheUsersAndOnlyTheOptionsLogOn) {
    window->ab_ToolClick("miESelectAll");
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(logOns, 0);
    window->ab_ToolClick("miVOptions");
    EXPECT_EQ(acts, 2);
    EXPECT_EQ(logOns, 1);
}

TEST_F(ShareAccessTest, ATickIsNotTheUsers) {
    tick();
    EXPECT_EQ(acts, 0);
}

TEST_F(ShareAccessTest, AClickOnThePopupIsTheUsers) {
    mailbox(12).append(1);
    tick();
    clickPopup("Label1");
    EXPECT_EQ(acts, 1);
}

// A server that is left alone for a while would refuse what the click asks of it.
TEST_F(ShareAccessTest, AClickOnATabIsTheUsersBeforeItAsksForAnything) {
    int questions = 0;
    onShare = [&] {
        ++questions;
        EXPECT_EQ(acts, 1);
    };
    Q_EMIT tabStrip().Click();
    EXPECT_GT(questions, 0);
    EXPECT_EQ(acts, 1);
}

} // namespace
} // namespace app
