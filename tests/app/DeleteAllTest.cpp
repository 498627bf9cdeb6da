// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/DeleteAllTest.h"

#include <sys/stat.h>

#include <filesystem>
#include <optional>

namespace app {
namespace {

TEST_F(DeleteAllTest, NoMailboxConfiguredShowsNoQuestion) {
    configure({});
    load();
    run();
    EXPECT_TRUE(messageBoxes.boxes.empty());
    EXPECT_TRUE(pauses.empty());
}

TEST_F(DeleteAllTest, AsksWithItsTextsAndOkIsNotTheDefault) {
    loadTwoMailboxes();
    messageBoxes.answer = forms::MessageBoxResult::Cancel;
    run();
    ASSERT_EQ(messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(messageBoxes.boxes[0],
              (data::RecordedBoxes::Box{"Are you sure you want to delete all of your messages?",
                                        forms::kOkCancel | forms::kQuestion | forms::kDefaultButton2,
                                        "Delete All Items"}));
}

TEST_F(DeleteAllTest, CancelChangesNothing) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    messageBoxes.answer = forms::MessageBoxResult::Cancel;
    run();
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
    EXPECT_EQ(stops, 0);
    EXPECT_TRUE(pauses.empty());
}

TEST_F(DeleteAllTest, EmptiesTheSelectedMailboxAndDeletesItsMessages) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    const std::string loud = makeSound(12, "C2.WAV");
    const std::string note = makeSound(12, "C1.wav.txt");
    const std::string other = makeSound(15, "C1.wav");
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_EQ(callsIn(15), 3U);
    EXPECT_FALSE(std::filesystem::exists(message));
    EXPECT_FALSE(std::filesystem::exists(loud));
    EXPECT_TRUE(std::filesystem::exists(note));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_TRUE(std::filesystem::exists(place(12, "qmLog.mdb")));
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, SingleMailboxKeepsItsMessageFiles) {
    configure({12});
    mailbox(12).append(3);
    load();
    const std::string message = makeSound(12, "C1.wav");
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, WithoutASelectedTabTheFirstMailboxIsEmptiedAndKeepsItsMessageFiles) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    const std::string other = makeSound(15, "C1.wav");
    tabStrip().SetSelectedItem(0);
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_EQ(callsIn(15), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
    EXPECT_TRUE(std::filesystem::exists(other));
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, RowsGoEvenWhenAMessageFileCannotAndNothingIsReported) {
    loadTwoMailboxes();
    const std::string kept = makeSound(12, "C1.wav");
    const std::string other = makeSound(12, "C2.wav");
    ASSERT_EQ(::chmod(kept.c_str(), 0444), 0);
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(std::filesystem::exists(kept));
    EXPECT_FALSE(std::filesystem::exists(other));
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, NoMessageFileAtAllIsNotReported) {
    loadTwoMailboxes();
    run();
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(DeleteAllTest, StopsTheMessageThatPlaysBeforeAnythingGoes) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    onStop = [&] {
        EXPECT_EQ(callsIn(12), 3U);
        EXPECT_TRUE(std::filesystem::exists(message));
    };
    run();
    EXPECT_EQ(stops, 1);
}

TEST_F(DeleteAllTest, PausesThenReloadsTheList) {
    loadTwoMailboxes();
    ASSERT_EQ(column(0).size(), 3U);
    run();
    EXPECT_EQ(pauses, std::vector<std::int32_t>{500});
    EXPECT_TRUE(column(0).empty());
}

TEST_F(DeleteAllTest, PendingEventsRunBeforeThePauseAndBetweenItAndTheReload) {
    loadTwoMailboxes();
    bool hasRunBefore = false;
    std::optional<std::size_t> listedAfter;
    onStop = [&] { post([&] { hasRunBefore = true; }); };
    onPause = [&] {
        EXPECT_TRUE(hasRunBefore);
        post([&] { listedAfter = column(0).size(); });
    };
    run();
    EXPECT_EQ(listedAfter, 3U);
    EXPECT_TRUE(column(0).empty());
}

TEST_F(DeleteAllTest, MailboxThatBecameCurrentDuringTheQuestionIsNotTouched) {
    loadTwoMailboxes();
    const std::string message = makeSound(15, "C1.wav");
    messageBoxes.onShow = [&] { tabStrip().SetSelectedItem(2); };
    run();
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_EQ(callsIn(15), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, ToolRunsTheCommand) {
    loadTwoMailboxes();
    window->ab_ToolClick("miEClear");
    EXPECT_EQ(messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_TRUE(errorHandler.reports.empty());
}

} // namespace
} // namespace app
