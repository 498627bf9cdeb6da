// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/basErrHandling.h"

#include "platform/basic/ErrorNumbers.h"

#include <optional>

namespace errors {
namespace {

// One statement of the handler itself: when it fails, the next one follows.
template <typename Statement>
void attempt(Statement&& statement) noexcept {
    try {
        statement();
    } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to report to
    }
}

// "A" needs no test: whatever is neither of the two aborts, also an empty or unknown answer.
ErrorAction actionFor(std::string_view answer) noexcept {
    if (answer == "I")
        return ErrorAction::Ignore;
    return answer == "R" ? ErrorAction::Retry : ErrorAction::Abort;
}

} // namespace

ErrorAction basErrHandling::ReportError(std::string_view module, std::string_view procedure,
                                        std::int32_t number, std::string_view description,
                                        std::int32_t line) {
    if (number == basic::kNonModalWhileModal)
        return ErrorAction::Abort;
    ErrorRecord failure{module, procedure, number, description, line, {}};
    attempt([&] { failure.at = m_clock.now(); });
    std::optional<LogFile> log; // stays open while the user is asked
    attempt([&] { log.emplace(m_log.open()); });
    attempt([&] {
        if (log)
            log->append(recordText(failure));
    });
    if (m_asking)
        return ErrorAction::Abort;
    m_asking = true;
    std::string answer;
    attempt([&] { answer = ask(failure); });
    m_asking = false;
    return actionFor(answer);
}

std::string basErrHandling::ask(const ErrorRecord& failure) {
    if (!m_dialog)
        m_dialog = m_makeDialog();
    if (!m_dialog)
        return {};
    attempt([&] { m_dialog->setErrorNumber(failure.number); });
    attempt([&] { m_dialog->setLineNumber(failure.line); });
    attempt([&] { m_dialog->setDescription(failure.description); });
    attempt([&] { m_dialog->setProcedureName(failure.procedure); });
    attempt([&] { m_dialog->setModuleName(failure.module); });
    attempt([&] { m_dialog->Init(); });
    attempt([&] { m_dialog->showModal(); });
    return m_dialog->answer();
}

} // namespace errors
