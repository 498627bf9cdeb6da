// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The error handler of the program until its window is unloaded. Only then do the procedures go on whose
// waits for servers were cancelled for it; that they fail is nobody's business. What it is given must outlive
// it.

#include "errors/ErrorHandler.h"

namespace app {

class LastErrors final : public errors::ErrorHandler {
public:
    explicit LastErrors(errors::ErrorHandler& behind) : m_behind(behind) {}

    // Whatever is reported from now on is aborted without a word.
    void fallSilent() { m_isSilent = true; }

    errors::ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                                    std::string_view description, std::int32_t line) override {
        if (m_isSilent)
            return errors::ErrorAction::Abort;
        return m_behind.ReportError(module, procedure, number, description, line);
    }

private:
    errors::ErrorHandler& m_behind;
    bool m_isSilent = false;
};

} // namespace app
