// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Calendar arithmetic on the platform's dates: days since 1899-12-30 in local wall-clock time, years 100 to
// 9999 of the Gregorian calendar, also before it was introduced.

#include "platform/basic/Variant.h"

#include <cstdint>
#include <optional>

namespace basic {

struct CalendarTime {
    std::int32_t year = 1899;
    std::int32_t month = 12; // 1 to 12
    std::int32_t day = 30;   // 1 to 31
    std::int32_t hour = 0;
    std::int32_t minute = 0;
    std::int32_t second = 0;
    auto operator<=>(const CalendarTime&) const = default;
};

// Rounded to the second. Nothing for a number that is no date: NaN, infinite, before year 100, after 9999.
std::optional<CalendarTime> toCalendar(Date date) noexcept;

// Of a time that exists; one outside of its ranges is carried over (second 60 is the next minute).
Date toDate(const CalendarTime& time) noexcept;

} // namespace basic
