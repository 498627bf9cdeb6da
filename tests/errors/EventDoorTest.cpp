// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/EventDoor.h"

#include "platform/basic/RuntimeError.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

namespace errors {
namespace {

TEST(EventDoor, RunsTheHandlerOnceWithoutFailure) {
    RecordingErrorHandler handler;
    int runs = 0;
    EventDoor(handler).run("frmSysTray", "mnuSysTray_Click", [&] { ++runs; });
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(handler.reports.empty());
}

TEST(EventDoor, ReportsWhatIsThrownOnceUnderTheHandlersNamesAndLetsNothingThrough) {
    for (const ErrorAction answer : {ErrorAction::Ignore, ErrorAction::Abort}) {
        RecordingErrorHandler handler{answer};
        int runs = 0;
        const auto broken = [&] {
            ++runs;
            throw basic::RuntimeError(basic::kObjectNotSet);
        };
        const std::int32_t line = __LINE__ + 1;
        EventDoor(handler).run("frmSysTray", "mnuSysTray_Click", broken);
        EXPECT_EQ(runs, 1);
        ASSERT_EQ(handler.reports.size(), 1U);
        EXPECT_EQ(handler.reports[0].module, "frmSysTray");
        EXPECT_EQ(handler.reports[0].procedure, "mnuSysTray_Click");
        EXPECT_EQ(handler.reports[0].number, 91);
        EXPECT_EQ(handler.reports[0].line, line);
    }
}

TEST(EventDoor, RetryRunsTheWholeHandlerAgain) {
    RecordingErrorHandler handler{ErrorAction::Retry};
    int runs = 0;
    EventDoor(handler).run("frmSysTray", "mnuSysTray_Click", [&] {
        if (++runs == 1)
            throw basic::RuntimeError(basic::kObjectNotSet);
    });
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(handler.reports.size(), 1U);
}

} // namespace
} // namespace errors
