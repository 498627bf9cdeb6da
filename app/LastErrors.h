// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The error handler of the program until its window is unloaded. Only then do the procedures go on whose
// waits for servers were cancelled for it; that they fail is nobody's business. What it is given must outlive
// it.
//
// Whoever wants something tried again wants it now: servers that are left alone for a while are told so.

#include "errors/ErrorHandler.h"

#include <functional>
#include <utility>

namespace app {

class LastErrors final : public errors::ErrorHandler {
public:
    // `tryNow` runs before what failed runs again.
    LastErrors(errors::ErrorHandler& behind, std::function<void()> tryNow)
        : m_behind(behind), m_tryNow(std::move(tryNow)) {}

    // Whatever is reported from now on is aborted without a word.
    void fallSilent() { m_isSilent = true; }

    errors::ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                                    std::string_view description, std::int32_t line) override {
        if (m_isSilent)
            return errors::ErrorAction::Abort;
        const auto action = m_behind.ReportError(module, procedure, number, description, line);
        if (action == errors::ErrorAction::Retry)
            m_tryNow();
        return action;
    }

private:
    errors::ErrorHandler& m_behind;
    std::function<void()> m_tryNow;
    bool m_isSilent = false;
};

} // namespace app
