// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Databases that cannot be emptied, or not yet.
#include "tests/app/DeleteAllTest.h"
#include "tests/platform/share/DenyingFileSystem.h"

#include <filesystem>

namespace app {
namespace {

TEST_F(DeleteAllTest, SomebodyInTheDatabaseIsReportedAndIgnoringKeepsTheMessages) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    const auto other = somebodyIn(12);
    reporter.answers = {errors::ErrorAction::Ignore};
    run();
    ASSERT_EQ(reporter.reports.size(), 1U);
    EXPECT_EQ(reporter.reports[0].module, "frmMain");
    EXPECT_EQ(reporter.reports[0].procedure, "ab_ToolClick");
    EXPECT_EQ(reporter.reports[0].number, basic::kProviderFailure);
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_TRUE(std::filesystem::exists(message));
    EXPECT_EQ(pauses.size(), 1U) << "the command goes on with its next step";
}

TEST_F(DeleteAllTest, TryAgainCarriesTheCommitOut) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    auto other = somebodyIn(12);
    reporter.answers = {errors::ErrorAction::Retry};
    reporter.onReport = [&] { other.reset(); };
    run();
    EXPECT_EQ(reporter.reports.size(), 1U);
    EXPECT_EQ(callsIn(12), 0U);
    EXPECT_FALSE(std::filesystem::exists(message));
}

TEST_F(DeleteAllTest, AbortEndsTheCommand) {
    loadTwoMailboxes();
    const auto other = somebodyIn(12);
    reporter.answers = {errors::ErrorAction::Abort};
    run();
    EXPECT_EQ(callsIn(12), 3U);
    EXPECT_TRUE(pauses.empty());
}

// Another client that deletes, for example: the server keeps everybody else out meanwhile.
TEST_F(DeleteAllTest, SomebodyWhoHasTheDatabaseAloneForAMomentIsWaitedFor) {
    loadTwoMailboxes();
    share::testing::DenyingFileSystem server(files);
    int waits = 0;
    jet::Engine patient(server, [](int) {}, {.sleep = [&](std::chrono::milliseconds) { ++waits; }});
    data::basCommon connections(reporter, server, [&] { return std::make_shared<jet::Connection>(patient); });
    server.readRefusals = 20;
    server.exclusiveRefusals = 20;
    run(connections);
    EXPECT_TRUE(reporter.reports.empty());
    EXPECT_EQ(waits, 39);
    EXPECT_EQ(callsIn(12), 0U);
}

TEST_F(DeleteAllTest, MailboxWithoutDatabaseIsError91) {
    loadTwoMailboxes();
    const std::string message = makeSound(12, "C1.wav");
    std::filesystem::remove(place(12, "qmLog.mdb"));
    reporter.answers = {errors::ErrorAction::Ignore};
    run();
    ASSERT_EQ(reporter.reports.size(), 1U);
    EXPECT_EQ(reporter.reports[0].number, basic::kObjectNotSet);
    EXPECT_TRUE(std::filesystem::exists(message));
}

} // namespace
} // namespace app
