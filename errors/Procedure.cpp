// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/Procedure.h"

#include "errors/Failure.h"

namespace errors {

ErrorAction Procedure::report(const std::exception_ptr& failure, std::int32_t line) const noexcept {
    try {
        const Failure what = describe(failure);
        return m_handler.ReportError(m_module, m_procedure, what.number, what.description, line);
    } catch (...) {
        // Not even the report could be made (no memory for its text): nobody can be asked.
        return ErrorAction::Abort;
    }
}

bool Procedure::answered(const std::exception_ptr& failure, std::int32_t line) noexcept {
    switch (report(failure, line)) {
    case ErrorAction::Retry:
        return true;
    case ErrorAction::Ignore:
        return false;
    case ErrorAction::Abort:
        break;
    }
    m_state = State::Aborted;
    return false;
}

} // namespace errors
