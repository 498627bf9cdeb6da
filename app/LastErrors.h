// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The error handler of the program as long as it runs. Once it ends, waits for servers are cancelled and
// procedures fail for no other reason: these failures are nobody's business, and a dialog would keep the
// program from ending. What it is given must outlive it.

#include "errors/ErrorHandler.h"

#include <functional>
#include <utility>

namespace app {

class LastErrors final : public errors::ErrorHandler {
public:
    LastErrors(errors::ErrorHandler& behind, std::function<bool()> isEnding)
        : m_behind(behind), m_isEnding(std::move(isEnding)) {}

    errors::ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                                    std::string_view description, std::int32_t line) override {
        if (m_isEnding())
            return errors::ErrorAction::Abort;
        return m_behind.ReportError(module, procedure, number, description, line);
    }

private:
    errors::ErrorHandler& m_behind;
    std::function<bool()> m_isEnding;
};

} // namespace app
