// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The error trap of one procedure call. Each statement that can fail is a step; a failing step is reported
// under the procedure's names and the answer decides: Retry runs the step again, Ignore goes on with the next
// one, Abort skips every further step up to the clean-up exit. Nothing that a step throws leaves it: any
// other exception becomes a number and a text.
//
//     bool CallList::LoadList() {
//         Procedure proc{m_errors, "frmMain", "LoadList"};
//         proc.step([&] { ... });
//         while (proc.value(false, [&] { return !records.eof(); }))
//             proc.step([&] { ... });
//         return proc.finish([&] { connection.reset(); });
//     }
//
// A loop must end when the procedure does not run any more: its condition is a value() with the fallback that
// ends it, or it tests running(). Lives on the stack of the procedure, on the user-interface thread.

#include "errors/ErrorHandler.h"
#include "errors/SourceLine.h"

#include <cstdint>
#include <exception>
#include <string_view>
#include <utility>

namespace errors {

class Procedure {
public:
    Procedure(ErrorHandler& handler, std::string_view module, std::string_view procedure)
        : m_handler(handler), m_module(module), m_procedure(procedure) {}
    Procedure(const Procedure&) = delete;
    Procedure& operator=(const Procedure&) = delete;

    // True until Abort was answered or leave() was called.
    bool running() const noexcept { return m_state == State::Running; }
    bool aborted() const noexcept { return m_state == State::Aborted; }
    // Skips the steps that follow, without a failure: the procedure's own early exit.
    void leave() noexcept {
        if (running())
            m_state = State::Left;
    }

    // Runs one statement under the trap. Answers whether it was carried out in the end.
    template <typename Statement>
    bool step(Statement&& statement, SourceLine line = SourceLine::here()) {
        while (running()) {
            try {
                statement();
                return true;
            } catch (...) {
                if (!answered(std::current_exception(), line.number))
                    return false;
            }
        }
        return false;
    }

    // A statement that yields a value; `fallback` is the value when it was ignored, aborted or skipped.
    template <typename Result, typename Expression>
    Result value(Result fallback, Expression&& expression, SourceLine line = SourceLine::here()) {
        Result result = std::move(fallback);
        step([&] { result = expression(); }, line);
        return result;
    }

    // The clean-up exit: runs whatever happened before, its own failures ignored. Answers true unless the
    // procedure was aborted.
    template <typename CleanUp>
    bool finish(CleanUp&& cleanUp) {
        try {
            cleanUp();
        } catch (...) { // NOLINT(bugprone-empty-catch): the clean-up exit must always be reached to its end
        }
        return !aborted();
    }
    bool finish() const noexcept { return !aborted(); }

private:
    enum class State { Running, Left, Aborted };

    ErrorAction report(const std::exception_ptr& failure, std::int32_t line) const noexcept;
    // Reports the failure; true when the statement is to run again.
    bool answered(const std::exception_ptr& failure, std::int32_t line) noexcept;

    ErrorHandler& m_handler;
    std::string_view m_module;
    std::string_view m_procedure;
    State m_state = State::Running;
};

} // namespace errors
