// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/errors/Provocation.h"

#include <utility>

namespace errors {
namespace {

// A cause that the repair does not take away would be tried again for ever.
constexpr std::size_t kPatience = 5;

std::vector<Provocation>& provocations() {
    static std::vector<Provocation> all;
    return all;
}

std::vector<CannotFail>& exceptions() {
    static std::vector<CannotFail> all;
    return all;
}

} // namespace

ErrorAction Trial::ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                               std::string_view description, std::int32_t line) {
    reports.push_back({std::string(module), std::string(procedure), number, std::string(description), line});
    if (m_answer != ErrorAction::Retry)
        return m_answer;
    repair();
    return reports.size() < kPatience ? ErrorAction::Retry : ErrorAction::Abort;
}

Provocation::Provocation(std::string moduleName, std::string procedureName, std::int32_t errorNumber,
                         Run howToRun)
    : module(std::move(moduleName)), procedure(std::move(procedureName)), number(errorNumber),
      run(std::move(howToRun)) {
    provocations().push_back(*this);
}

const std::vector<Provocation>& Provocation::all() {
    return provocations();
}

CannotFail::CannotFail(std::string moduleName, std::string procedureName, std::string aWhy)
    : module(std::move(moduleName)), procedure(std::move(procedureName)), why(std::move(aWhy)) {
    exceptions().push_back(*this);
}

const std::vector<CannotFail>& CannotFail::all() {
    return exceptions();
}

} // namespace errors
