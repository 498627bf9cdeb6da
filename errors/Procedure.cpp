// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/Procedure.h"

#include "errors/Failure.h"

namespace errors {

bool Procedure::answered(std::exception_ptr failure, std::int32_t line) {
    const Failure what = describe(failure);
    switch (m_handler.ReportError(m_module, m_procedure, what.number, what.description, line)) {
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
