// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ErrorsIgnored.h"

#include "platform/basic/RuntimeError.h"

#include <gtest/gtest.h>

namespace errors {
namespace {

TEST(ErrorsIgnored, RunsTheStatementOnce) {
    int runs = 0;
    withErrorsIgnored([&] { ++runs; });
    EXPECT_EQ(runs, 1);
}

TEST(ErrorsIgnored, GoesOnAfterARunTimeError) {
    int runs = 0;
    withErrorsIgnored([&] {
        ++runs;
        throw basic::RuntimeError(basic::kOverflow);
    });
    EXPECT_EQ(runs, 1);
}

TEST(ErrorsIgnored, GoesOnAfterWhateverElseIsThrown) {
    int runs = 0;
    withErrorsIgnored([&] {
        ++runs;
        throw 7;
    });
    EXPECT_EQ(runs, 1);
}

} // namespace
} // namespace errors
