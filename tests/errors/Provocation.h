// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How a failure is provoked in a procedure. procedure_tests runs each of them three times, once for each
// answer, and fails for a procedure in the generated list that has none. They stand beside the subsystem's
// other tests, in sources that its CMakeLists.txt names with qm_provocations():
//
//     const errors::Provocation kShowForm{"frmAlert", "ShowForm", basic::kInvalidProcedureCall,
//                                         [](errors::Trial& trial) -> errors::Effect {
//         FakeDesktop desktop{.isBroken = true};            // a world of its own for every run
//         trial.repair = [&] { desktop.isBroken = false; }; // what the user does before "Try again"
//         tray::frmAlert popup(trial, desktop);             // the trial is the error handler
//         popup.ShowForm();
//         return {desktop.wasAsked, popup.isVisible()};     // what the failing and the next statement did
//     }};
//
// The failing statement must have an effect that can be seen, and so must a later one that does not need it;
// where the procedure has no later one, `next` is left out. A procedure in which no statement can fail says
// why with errors::CannotFail.

#include "errors/ErrorHandler.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace errors {

struct Effect {
    bool failing = false;
    std::optional<bool> next = std::nullopt;
};

// The error handler of one run: gives the same answer each time, "Try again" after the repair.
class Trial final : public ErrorHandler {
public:
    explicit Trial(ErrorAction answer) : m_answer(answer) {}

    ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                            std::string_view description, std::int32_t line) override;

    std::function<void()> repair = [] {};
    std::vector<Report> reports;

private:
    ErrorAction m_answer;
};

class Provocation {
public:
    using Run = std::function<Effect(Trial&)>;

    // Registers itself: to be made at namespace scope. `number` is that of the provoked failure.
    Provocation(std::string module, std::string procedure, std::int32_t number, Run run);

    std::string module;
    std::string procedure;
    std::int32_t number;
    Run run;

    static const std::vector<Provocation>& all();
    // What GoogleTest calls it.
    friend void PrintTo(const Provocation& provocation, std::ostream* out) {
        *out << provocation.module << '.' << provocation.procedure;
    }
};

struct CannotFail {
    CannotFail(std::string module, std::string procedure, std::string why);

    std::string module;
    std::string procedure;
    std::string why;

    static const std::vector<CannotFail>& all();
};

} // namespace errors
