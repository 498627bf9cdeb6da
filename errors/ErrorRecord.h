// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One failure as the error log keeps it: five lines, each closed by CR LF, values from the 23rd column on.
// Other programs read the log, so labels and blanks stay as they are, and a line break in a value is written
// as a blank: a record never has another number of lines.

#include "platform/basic/Calendar.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace errors {

// The views must live as long as the record.
struct ErrorRecord {
    std::string_view module;
    std::string_view procedure;
    std::int32_t number = 0;
    std::string_view description;
    std::int32_t line = 0;
    basic::CalendarTime at;
};

std::string recordText(const ErrorRecord& record);

// "YYYY-MM-DD HH:MM:SS", the time form of log and report.
std::string timeText(const basic::CalendarTime& time);

} // namespace errors
