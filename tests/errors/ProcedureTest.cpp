// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/Procedure.h"

#include "platform/basic/RuntimeError.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace errors {
namespace {

[[noreturn]] void fail(std::int32_t number = basic::kOverflow) {
    throw basic::RuntimeError(number);
}

TEST(Procedure, ReportsUnderItsNamesWithNumberAndDescription) {
    RecordingErrorHandler handler{ErrorAction::Ignore};
    Procedure proc{handler, "frmMain", "LoadList"};
    proc.step([] { throw basic::RuntimeError(-2147467259, "qmLog.mdb is locked"); });
    ASSERT_EQ(handler.reports.size(), 1U);
    EXPECT_EQ(handler.reports[0].module, "frmMain");
    EXPECT_EQ(handler.reports[0].procedure, "LoadList");
    EXPECT_EQ(handler.reports[0].number, -2147467259);
    EXPECT_EQ(handler.reports[0].description, "qmLog.mdb is locked");
}

TEST(Procedure, ReportsTheLineOfTheStep) {
    RecordingErrorHandler handler{ErrorAction::Ignore, ErrorAction::Ignore};
    Procedure proc{handler, "m", "p"};
    const std::int32_t line = __LINE__;
    proc.step([] { fail(); });
    proc.value(0, []() -> int { fail(); });
    ASSERT_EQ(handler.reports.size(), 2U);
    EXPECT_EQ(handler.reports[0].line, line + 1);
    EXPECT_EQ(handler.reports[1].line, line + 2);
}

TEST(Procedure, WithoutFailureRunsEveryStepOnceAndReportsNothing) {
    RecordingErrorHandler handler;
    Procedure proc{handler, "m", "p"};
    int runs = 0;
    EXPECT_TRUE(proc.step([&] { ++runs; }));
    EXPECT_TRUE(proc.step([&] { ++runs; }));
    EXPECT_TRUE(proc.finish());
    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(handler.reports.empty());
}

TEST(Procedure, RetryRepeatsTheFailingStepUntilItSucceeds) {
    RecordingErrorHandler handler{ErrorAction::Retry, ErrorAction::Retry};
    Procedure proc{handler, "m", "p"};
    int before = 0;
    int tries = 0;
    proc.step([&] { ++before; });
    EXPECT_TRUE(proc.step([&] {
        if (++tries < 3)
            fail();
    }));
    EXPECT_EQ(before, 1);
    EXPECT_EQ(tries, 3);
    EXPECT_EQ(handler.reports.size(), 2U);
    EXPECT_TRUE(proc.finish());
}

TEST(Procedure, IgnoreSkipsTheRestOfExactlyOneStep) {
    RecordingErrorHandler handler{ErrorAction::Ignore};
    Procedure proc{handler, "m", "p"};
    std::string trace;
    proc.step([&] { trace += 'a'; });
    EXPECT_FALSE(proc.step([&] {
        trace += 'b';
        fail();
    }));
    proc.step([&] { trace += 'c'; });
    EXPECT_EQ(trace, "abc");
    EXPECT_TRUE(proc.running());
    EXPECT_TRUE(proc.finish());
}

TEST(Procedure, AbortSkipsEveryFurtherStepAndIsNotPassedOn) {
    RecordingErrorHandler handler{ErrorAction::Abort};
    Procedure proc{handler, "m", "p"};
    bool later = false;
    bool cleaned = false;
    EXPECT_FALSE(proc.step([] { fail(); }));
    EXPECT_FALSE(proc.step([&] { later = true; }));
    EXPECT_FALSE(proc.finish([&] { cleaned = true; }));
    EXPECT_FALSE(later);
    EXPECT_TRUE(cleaned);
    EXPECT_TRUE(proc.aborted());
    EXPECT_EQ(handler.reports.size(), 1U);
}

TEST(Procedure, AnAnswerOutsideTheThreeAborts) {
    RecordingErrorHandler handler{static_cast<ErrorAction>(17)};
    Procedure proc{handler, "m", "p"};
    proc.step([] { fail(); });
    EXPECT_TRUE(proc.aborted());
}

TEST(Procedure, ALoopEndsWhenAStepInsideIsAborted) {
    RecordingErrorHandler handler{ErrorAction::Abort};
    Procedure proc{handler, "m", "p"};
    int rounds = 0;
    while (proc.value(false, [] { return true; })) {
        ++rounds;
        proc.step([] { fail(); });
        ASSERT_LT(rounds, 10);
    }
    EXPECT_EQ(rounds, 1);
}

TEST(Procedure, ALoopGoesOnAfterAnIgnoredStep) {
    RecordingErrorHandler handler{ErrorAction::Ignore};
    Procedure proc{handler, "m", "p"};
    int rounds = 0;
    while (proc.value(false, [&] { return rounds < 3; }))
        if (++rounds == 2)
            proc.step([] { fail(); });
    EXPECT_EQ(rounds, 3);
}

TEST(Procedure, ValueGivesTheResultOrItsFallback) {
    RecordingErrorHandler handler{ErrorAction::Ignore, ErrorAction::Abort};
    Procedure proc{handler, "m", "p"};
    EXPECT_EQ(proc.value(1, [] { return 7; }), 7);
    EXPECT_EQ(proc.value(std::string("fallback"), []() -> std::string { fail(); }), "fallback");
    EXPECT_EQ(proc.value(3, []() -> int { fail(); }), 3);
    EXPECT_EQ(proc.value(4, [] { return 8; }), 4) << "skipped after the abort";
}

TEST(Procedure, ValueIsThatOfTheRetry) {
    RecordingErrorHandler handler{ErrorAction::Retry};
    Procedure proc{handler, "m", "p"};
    int tries = 0;
    const int value = proc.value(0, [&] {
        if (++tries == 1)
            fail();
        return tries;
    });
    EXPECT_EQ(value, 2);
}

TEST(Procedure, LeaveSkipsTheRestWithoutAReport) {
    RecordingErrorHandler handler;
    Procedure proc{handler, "m", "p"};
    bool later = false;
    proc.leave();
    proc.step([&] { later = true; });
    EXPECT_FALSE(later);
    EXPECT_FALSE(proc.running());
    EXPECT_TRUE(proc.finish()) << "leaving early is no failure";
}

TEST(Procedure, LeaveAfterAnAbortStaysAborted) {
    RecordingErrorHandler handler;
    Procedure proc{handler, "m", "p"};
    proc.step([] { fail(); });
    proc.leave();
    EXPECT_FALSE(proc.finish());
}

TEST(Procedure, ACleanUpThatFailsIsSwallowed) {
    RecordingErrorHandler handler;
    Procedure proc{handler, "m", "p"};
    EXPECT_TRUE(proc.finish([] { fail(); }));
    EXPECT_TRUE(handler.reports.empty());
}

TEST(Procedure, AnythingThrownBecomesANumberAndAText) {
    RecordingErrorHandler handler{ErrorAction::Ignore, ErrorAction::Ignore, ErrorAction::Ignore};
    Procedure proc{handler, "m", "p"};
    proc.step([] { throw std::bad_alloc(); });
    proc.step([] { throw std::runtime_error("vector too long"); });
    proc.step([] { throw 42; });
    ASSERT_EQ(handler.reports.size(), 3U);
    EXPECT_EQ(handler.reports[0].number, 7);
    EXPECT_EQ(handler.reports[0].description, "Out of memory");
    EXPECT_EQ(handler.reports[1].number, 51);
    EXPECT_EQ(handler.reports[1].description, "Internal error: vector too long");
    EXPECT_EQ(handler.reports[2].number, 51);
    EXPECT_EQ(handler.reports[2].description, "Internal error");
}

TEST(Procedure, AnInnerAbortEndsOnlyTheInnerProcedure) {
    RecordingErrorHandler handler{ErrorAction::Abort};
    Procedure outer{handler, "frmMain", "mTimer_ThatTime"};
    bool afterwards = false;
    outer.step([&] {
        Procedure inner{handler, "frmMain", "LoadList"};
        inner.step([] { fail(); });
        EXPECT_FALSE(inner.finish());
    });
    outer.step([&] { afterwards = true; });
    EXPECT_TRUE(afterwards);
    EXPECT_TRUE(outer.finish());
    ASSERT_EQ(handler.reports.size(), 1U);
    EXPECT_EQ(handler.reports[0].procedure, "LoadList");
}

TEST(Procedure, AHandlerThatFailsItselfAborts) {
    struct Broken final : ErrorHandler {
        ErrorAction ReportError(std::string_view, std::string_view, std::int32_t, std::string_view,
                                std::int32_t) override {
            throw std::bad_alloc();
        }
    } handler;
    Procedure proc{handler, "m", "p"};
    EXPECT_FALSE(proc.step([] { fail(); }));
    EXPECT_TRUE(proc.aborted());
}

} // namespace
} // namespace errors
