// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The real handler of failures with its log and its dialog, and a clock of its own. Made before the window
// that reports to it.

#include "errors/basErrHandling.h"
#include "errors/frmError.h"
#include "tests/errors/WorkingFolder.h"

#include <memory>
#include <string>

namespace app {

class SetClock final : public basic::Clock {
public:
    basic::CalendarTime now() const override {
        return {2026, 3, 14, 9 + m_seconds / 3600, m_seconds / 60 % 60, m_seconds % 60};
    }
    void pass(int seconds) { m_seconds += seconds; }

private:
    int m_seconds = 0;
};

class RealHandler {
protected:
    std::string log() const { return errors::contentOf(m_folder.path() / "qmClient.log"); }
    int records() const {
        const std::string text = log();
        int count = 0;
        for (auto at = text.find("***** Error"); at != std::string::npos;
             at = text.find("***** Error", at + 1))
            ++count;
        return count;
    }

    errors::WorkingFolder m_folder;
    SetClock m_clock;
    errors::ErrorDialogState m_state;
    int m_dialogsMade = 0;
    errors::basErrHandling m_handler{errors::ErrorLog("qmClient.log", ""), m_clock, [this] {
                                         ++m_dialogsMade;
                                         return std::make_unique<errors::frmError>(
                                             errors::programFacts("qmClient"), m_state, nullptr);
                                     }};
};

} // namespace app
