// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What an action throws.

#include "tests/platform/basic/ErrorOf.h"

#include <functional>
#include <string>

namespace mediagraph::testing {

using basic::errorOf;

inline std::string errorTextOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const basic::RuntimeError& error) {
        return error.description();
    }
    return {};
}

} // namespace mediagraph::testing
