// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ErrorRecord.h"

#include "platform/basic/DateTimeFormat.h"

namespace errors {
namespace {

constexpr std::size_t kDigits = 5;

// At least five digits; the sign stands before them and does not count.
std::string padded(std::int32_t number) {
    std::string digits = std::to_string(number);
    const std::size_t sign = number < 0 ? 1U : 0U;
    if (digits.size() - sign < kDigits)
        digits.insert(sign, kDigits - (digits.size() - sign), '0');
    return digits;
}

// A value has one line in the record, whatever it brings along: a line break becomes a blank.
std::string onOneLine(std::string_view value) {
    std::string line;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const bool isPair = value[i] == '\r' && i + 1 < value.size() && value[i + 1] == '\n';
        if (!isPair)
            line.push_back(value[i] == '\r' || value[i] == '\n' ? ' ' : value[i]);
    }
    return line;
}

} // namespace

std::string timeText(const basic::CalendarTime& time) {
    return basic::formatPattern(time, "yyyy-MM-dd HH:mm:ss", {});
}

std::string recordText(const ErrorRecord& record) {
    std::string text;
    text.append("***** Error ").append(padded(record.number));
    text.append(" at: ").append(timeText(record.at)).append("\r\n");
    text.append("  *** Module:         ").append(onOneLine(record.module)).append("\r\n");
    text.append("  *** Procedure:      ").append(onOneLine(record.procedure)).append("\r\n");
    text.append("  *** Line Number:    ").append(std::to_string(record.line)).append("\r\n");
    text.append("  *** Description:    ").append(onOneLine(record.description)).append("\r\n");
    return text;
}

} // namespace errors
