// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The number of the error that a statement raises, 0 for none.

#include "platform/basic/RuntimeError.h"

#include <cstdint>

namespace forms {

template <typename Statement>
std::int32_t raisedError(Statement&& statement) {
    try {
        statement();
    } catch (const basic::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace forms
