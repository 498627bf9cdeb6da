// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One statement of a procedure that ignores its errors: when it fails nobody is told, and the statement after
// it runs. Every such statement has a call of its own, for whatever stands behind a failing one inside the
// same call is skipped with it.

namespace errors {

template <typename Statement>
void withErrorsIgnored(Statement&& statement) noexcept {
    try {
        statement();
    } catch (...) { // NOLINT(bugprone-empty-catch): that is what it is for
    }
}

} // namespace errors
