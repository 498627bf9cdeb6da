// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An error handler that keeps every report and gives the answers it was loaded with, in their order; when
// they run out it aborts, as the real one does without an answer.

#include "errors/ErrorHandler.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace errors {

struct Report {
    std::string module;
    std::string procedure;
    std::int32_t number = 0;
    std::string description;
    std::int32_t line = 0;
};

class RecordingErrorHandler final : public ErrorHandler {
public:
    RecordingErrorHandler() = default;
    RecordingErrorHandler(std::initializer_list<ErrorAction> first) : answers(first) {}

    ErrorAction ReportError(std::string_view module, std::string_view procedure, std::int32_t number,
                            std::string_view description, std::int32_t line) override {
        reports.push_back(
            {std::string(module), std::string(procedure), number, std::string(description), line});
        if (onReport)
            onReport();
        if (answers.empty())
            return ErrorAction::Abort;
        const ErrorAction answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<Report> reports;
    std::deque<ErrorAction> answers;
    std::function<void()> onReport; // before the answer
};

} // namespace errors
