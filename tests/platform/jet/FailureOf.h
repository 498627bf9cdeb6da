// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What an operation complains about: the description of the provider's failure that it throws, or a text that
// matches nothing when it throws none or another error.

#include "platform/basic/RuntimeError.h"

#include <string>

namespace jet::test {

template <typename Operation>
std::string failureOf(Operation&& operation) {
    try {
        operation();
    } catch (const basic::RuntimeError& error) {
        return error.number() == basic::kProviderFailure ? error.description() : "(another error number)";
    }
    return "(no error)";
}

} // namespace jet::test
