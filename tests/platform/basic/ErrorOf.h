// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The number of the RuntimeError that an action throws, 0 when it throws none.

#include "platform/basic/RuntimeError.h"

#include <cstdint>

namespace basic {

template <typename Action>
std::int32_t errorOf(Action&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace basic
