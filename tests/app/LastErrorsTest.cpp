// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LastErrors.h"

#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

namespace app {
namespace {

errors::ErrorAction reportedTo(errors::ErrorHandler& handler) {
    return handler.ReportError("frmMain", "LoadList", 53, "File not found", 40);
}

TEST(LastErrors, PassOnEachReportAndItsAnswer) {
    errors::RecordingErrorHandler behind{errors::ErrorAction::Retry};
    LastErrors errors(behind, [] {});
    EXPECT_EQ(reportedTo(errors), errors::ErrorAction::Retry);
    ASSERT_EQ(behind.reports.size(), 1U);
    EXPECT_EQ(behind.reports[0].procedure, "LoadList");
    EXPECT_EQ(behind.reports[0].line, 40);
}

TEST(LastErrors, HaveOnlyWhatIsTriedAgainTriedNow) {
    using errors::ErrorAction;
    errors::RecordingErrorHandler behind{ErrorAction::Ignore, ErrorAction::Abort, ErrorAction::Retry};
    int tries = 0;
    LastErrors errors(behind, [&] { ++tries; });
    reportedTo(errors);
    reportedTo(errors);
    EXPECT_EQ(tries, 0);
    reportedTo(errors);
    EXPECT_EQ(tries, 1);
}

TEST(LastErrors, AbortWithoutAWordOnceTheyFellSilent) {
    errors::RecordingErrorHandler behind{errors::ErrorAction::Retry};
    LastErrors errors(behind, [] { FAIL() << "nothing runs again"; });
    errors.fallSilent();
    EXPECT_EQ(reportedTo(errors), errors::ErrorAction::Abort);
    EXPECT_TRUE(behind.reports.empty());
}

} // namespace
} // namespace app
