// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The number of the RuntimeError that an action throws, 0 when it throws none.

#include "platform/basic/RuntimeError.h"

#include <cstdint>

namespace jet::test {

template <typename Action>
std::int32_t errorNumberOf(const Action& action) {
    try {
        action();
    } catch (const basic::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace jet::test
