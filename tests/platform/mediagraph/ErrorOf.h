// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What an action throws.

#include "platform/basic/RuntimeError.h"

#include <cstdint>
#include <functional>
#include <string>

namespace mediagraph::testing {

// The number of the error, 0 without one.
inline std::int32_t errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const basic::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

inline std::string errorTextOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const basic::RuntimeError& error) {
        return error.description();
    }
    return {};
}

} // namespace mediagraph::testing
