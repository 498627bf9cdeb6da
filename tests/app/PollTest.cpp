// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TabStrip.h"
#include "tests/app/MainWorld.h"

#include <filesystem>
#include <fstream>
#include <limits>

namespace app {
namespace {

using PollTest = MainWorld;

TEST_F(PollTest, FirstPollOnlyLearnsTheCount) {
    configure({12});
    mailbox(12).append(12);
    load();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 12);
    EXPECT_EQ(window->state().newCallTotal, 0);
}

TEST_F(PollTest, NewCallsAreAnnouncedAndASingleMailboxsListIsReloaded) {
    configure({12});
    mailbox(12).append(12);
    load();
    mailbox(12).append(3);
    tick();
    EXPECT_EQ(popupText(), "You have  3  new calls");
    EXPECT_EQ(column(0).size(), 15U);
}

TEST_F(PollTest, PopupIsShownAgainAtEveryPollUntilItIsClicked) {
    configure({12});
    mailbox(12).append(12);
    load();
    mailbox(12).append(3);
    tick();
    popup()->hide();
    tick();
    EXPECT_EQ(popupText(), "You have  3  new calls");
    clickPopup("Label1");
    EXPECT_EQ(popup(), nullptr);
    tick();
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(PollTest, AnEmptiedLogCountsAsNewOnlyBeyondItsFormerSize) {
    configure({12});
    mailbox(12).append(15);
    load();
    mailbox(12).create();
    mailbox(12).append(2);
    tick();
    EXPECT_EQ(popup(), nullptr);
    mailbox(12).append(14);
    tick();
    EXPECT_EQ(popupText(), "You have  1  new calls");
}

TEST_F(PollTest, TwoMailboxesGiveOnePopupWithTheSum) {
    configure({12, 15});
    mailbox(12).append(1);
    mailbox(15).append(1);
    load();
    mailbox(12).append(2);
    mailbox(15).append(5);
    tick();
    EXPECT_EQ(popupText(), "You have  7  new calls");
    EXPECT_EQ(column(0).size(), 1U); // the list waits for a click
    clickPopup("Label2");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(column(0).size(), 3U);
    EXPECT_EQ(window->state().newCallTotal, 0);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->NewCallCount, 0);
}

TEST_F(PollTest, ExitIsCarriedOutByTheNextTickWithoutAFurtherPoll) {
    configure({12});
    mailbox(12).append(1);
    load();
    mailbox(12).append(1);
    bool unloaded = false;
    QObject::connect(&*window, &frmMain::unloaded, [&] { unloaded = true; });
    window->state().exitRequested = true;
    tick();
    EXPECT_TRUE(unloaded);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().config, nullptr);
}

TEST_F(PollTest, OverflowOfTheTotalIsReportedUnderThePollsName) {
    configure({12});
    mailbox(12).append(1);
    load();
    window->state().newCallTotal = std::numeric_limits<std::int32_t>::max();
    mailbox(12).append(1);
    tick();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "frmMain");
    EXPECT_EQ(errorHandler.reports[0].procedure, "mTimer_ThatTime");
    EXPECT_EQ(errorHandler.reports[0].number, 6);
}

TEST_F(PollTest, AMailboxThatIsMissingIsSkippedAndTriedAgain) {
    configure({12, 15});
    mailbox(15).append(1);
    load();
    mailbox(15).append(1);
    tick();
    EXPECT_EQ(popupText(), "You have  1  new calls");
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(PollTest, ADamagedDefinitionIsReportedAndNothingIsCounted) {
    configure({12});
    mailbox(12).append(5);
    load();
    const auto file = mailbox(12).path();
    std::filesystem::resize_file(file, 3 * 4096); // header and catalog's definition whole, all else gone
    tick();
    ASSERT_FALSE(errorHandler.reports.empty());
    EXPECT_EQ(errorHandler.reports[0].procedure, "mTimer_ThatTime");
    EXPECT_LT(errorHandler.reports[0].number, 0);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 5);
    EXPECT_EQ(popup(), nullptr);
}

std::string replacement(const std::string& kind) {
    if (kind == "noise")
        return std::string(100'000, '\xA5');
    return kind == "text" ? "no database at all" : "";
}

class ReplacedDatabase : public MainWorld, public testing::WithParamInterface<std::string> {};

TEST_P(ReplacedDatabase, IsNeverCountedAndNotNewWhenItComesBack) {
    configure({12});
    mailbox(12).append(5);
    load();
    const auto file = mailbox(12).path();
    const auto kept = folder.path("kept.mdb");
    std::filesystem::copy_file(file, kept);
    std::filesystem::remove(file);
    if (GetParam() == "folder")
        std::filesystem::create_directory(file);
    else if (GetParam() != "nothing")
        std::ofstream(file, std::ios::binary) << replacement(GetParam());
    tick();
    EXPECT_EQ(popup(), nullptr);
    std::filesystem::remove_all(file);
    std::filesystem::copy_file(kept, file);
    tick();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(window->state().config->Mailboxes.at(1)->LastCallCount, 5);
    EXPECT_TRUE(errorHandler.reports.empty());
}

INSTANTIATE_TEST_SUITE_P(By, ReplacedDatabase,
                         testing::Values("nothing", "folder", "emptyFile", "text", "noise"));

TEST_F(PollTest, MailboxesThatAppearLaterAreListedAndAnnounceNothing) {
    configure({12, 15});
    load();
    EXPECT_TRUE(column(0).empty());
    mailbox(12).append(4);
    mailbox(15).append(4);
    tick();
    EXPECT_EQ(column(0).size(), 4U);
    EXPECT_EQ(popup(), nullptr);
    mailbox(15).append(1);
    tick();
    EXPECT_EQ(popupText(), "You have  1  new calls");
}

TEST_F(PollTest, ADatabaseThatOpensAndCannotBeCountedIsReportedOnceAPoll) {
    configure({12});
    mailbox(12).append(5);
    std::filesystem::resize_file(mailbox(12).path(), 3 * 4096);
    load();
    errorHandler.reports.clear();
    tick();
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "mTimer_ThatTime");
}

TEST_F(PollTest, WithoutAWatchedMailboxNothingIsCounted) {
    configure({});
    mailbox(0).append(1);
    load();
    mailbox(0).append(1);
    tick();
    EXPECT_EQ(popup(), nullptr);
    EXPECT_EQ(onlyLine(), "There are currently no mailboxes configured.");
}

TEST_F(PollTest, ServerThatAppearsLaterBringsItsTabsAndAnnouncesNothing) {
    configure({12, 15});
    removeShare();
    load();
    EXPECT_EQ(onlyLine(), "A connection to the server could not be established.");
    mailbox(12).append(4);
    mailbox(15).append(4);
    tick();
    EXPECT_EQ(window->findChild<forms::TabStrip*>()->Tabs().Count(), 2);
    EXPECT_EQ(column(0).size(), 4U);
    EXPECT_EQ(popup(), nullptr);
}

} // namespace
} // namespace app
