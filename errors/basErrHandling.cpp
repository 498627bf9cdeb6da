// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/basErrHandling.h"

#include "errors/ErrorsIgnored.h"
#include "platform/basic/ErrorNumbers.h"

#include <optional>

namespace errors {
namespace {

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
    withErrorsIgnored([&] { failure.at = m_clock.now(); });
    std::optional<LogFile> log; // stays open while the user is asked
    withErrorsIgnored([&] { log.emplace(m_log.open()); });
    withErrorsIgnored([&] {
        if (log)
            log->append(recordText(failure));
    });
    if (m_asksNobody)
        return ErrorAction::Ignore;
    if (m_asking)
        return ErrorAction::Abort;
    m_asking = true;
    std::string answer;
    withErrorsIgnored([&] { answer = ask(failure); });
    m_asking = false;
    return actionFor(answer);
}

std::string basErrHandling::ask(const ErrorRecord& failure) {
    if (!m_dialog)
        m_dialog = m_makeDialog();
    if (!m_dialog)
        return {};
    withErrorsIgnored([&] { m_dialog->setErrorNumber(failure.number); });
    withErrorsIgnored([&] { m_dialog->setLineNumber(failure.line); });
    withErrorsIgnored([&] { m_dialog->setDescription(failure.description); });
    withErrorsIgnored([&] { m_dialog->setProcedureName(failure.procedure); });
    withErrorsIgnored([&] { m_dialog->setModuleName(failure.module); });
    withErrorsIgnored([&] { m_dialog->Init(); });
    withErrorsIgnored([&] { m_dialog->showModal(); });
    return m_dialog->answer();
}

} // namespace errors
