// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The user's formats for the platform's default text conversion, and dates by them. The program fills the
// struct once from the locale; the defaults are the same everywhere and good for logs and tests.

#include "platform/basic/Calendar.h"

#include <string>
#include <string_view>

namespace basic {

struct DateTimeFormat {
    std::string shortDate = "yyyy-MM-dd";
    std::string longTime = "HH:mm:ss";
    std::string decimalSeparator = ".";
    std::string amText = "AM";
    std::string pmText = "PM";
    std::string invalidDate = "(invalid date)"; // shown for a stored number that is no date
};

// Fills a pattern: d dd M MM y yy yyyy, H HH m mm s ss, h hh (of twelve hours where the pattern has AP, else
// of twenty-four), AP ap A a, 'quoted' with '' for the quote itself; a time zone (t) is left out, as is the
// blank before it. Longer runs than these (MMM) give the two-digit number. Everything else stands for itself.
std::string formatPattern(const CalendarTime& time, std::string_view pattern, const DateTimeFormat& format);

// The platform's default text of a date: short date, a blank, long time; without the time at exactly
// midnight, without the date on day 0.
std::string toText(Date date, const DateTimeFormat& format);

} // namespace basic
