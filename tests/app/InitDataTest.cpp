// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is left of the counts when everything is built anew, and cannot be.
#include "tests/app/MainWorld.h"

namespace app {
namespace {

constexpr std::int32_t kBeyondTheTimer = 9'999'999; // seconds
constexpr const char* kNoConnection = "A connection to the server could not be established.";

class InitDataTest : public MainWorld {
protected:
    data::clsConfig& config() { return *window->state().config; }
    // The interval is the first thing that is taken.
    void abortInitData() {
        config().PollInterval = kBeyondTheTimer;
        window->InitData();
        ASSERT_EQ(errorHandler.reports.size(), 1U);
    }
    void loadAndAnnounceThree() {
        configure({12});
        mailbox(12).append(1);
        load();
        mailbox(12).append(3);
        tick();
        ASSERT_EQ(popupText(), "You have  3  new calls");
    }
};

TEST_F(InitDataTest, OneThatWasAbortedIsNotTriedAgainByEveryTick) {
    configure({12});
    mailbox(12).append(2);
    load();
    abortInitData();
    mailbox(12).append(1);
    tick();
    EXPECT_EQ(popup(), nullptr);
    mailbox(12).append(3);
    tick();
    EXPECT_EQ(popupText(), "You have  3  new calls");
    EXPECT_EQ(errorHandler.reports.size(), 1U);
}

TEST_F(InitDataTest, OneThatWasAbortedWaitsForNoServerAnyMore) {
    configure({12});
    removeShare();
    load();
    ASSERT_EQ(onlyLine(), kNoConnection);
    abortInitData();
    mailbox(12).append(4);
    tick();
    tick();
    EXPECT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(InitDataTest, OneThatWasAbortedAtTheTabsAnnouncesNothingOld) {
    configure({12, 15});
    mailbox(12);
    mailbox(15);
    load();
    mailbox(12).append(5);
    config().Mailboxes.at(2)->ID = 12; // no two tabs have one key
    window->InitData();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "InitData");
    tick();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().newCallTotal, 0);
}

TEST_F(InitDataTest, WithoutTheServerNothingIsLeftToAnnounce) {
    loadAndAnnounceThree();
    popup()->hide();
    removeShare();
    window->InitData();
    EXPECT_EQ(window->state().newCallTotal, 0);
    EXPECT_EQ(config().Mailboxes.at(1)->NewCallCount, 0);
    tick();
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(InitDataTest, WithoutTheServerAClickOnThePopupLeavesTheLine) {
    loadAndAnnounceThree();
    removeShare();
    window->InitData();
    ASSERT_EQ(onlyLine(), kNoConnection);
    clickPopup("Label1");
    EXPECT_EQ(onlyLine(), kNoConnection);
}

} // namespace
} // namespace app
