// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// EXPECT_ERROR(number, statement): the statement throws a RuntimeError with this number.

#include "platform/basic/RuntimeError.h"

#include <gtest/gtest.h>

#include <functional>

namespace share::testing {

inline ::testing::AssertionResult throwsError(std::int32_t number, const std::function<void()>& statement) {
    try {
        statement();
    } catch (const basic::RuntimeError& error) {
        if (error.number() == number)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "error " << error.number() << ": " << error.description();
    }
    return ::testing::AssertionFailure() << "no error, expected " << number;
}

} // namespace share::testing

#define EXPECT_ERROR(number, statement)                                                                      \
    EXPECT_TRUE(::share::testing::throwsError(number, [&] { static_cast<void>(statement); }))
