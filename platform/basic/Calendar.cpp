// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Calendar.h"

#include <chrono>
#include <cmath>

namespace basic {
namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr std::int32_t kSecondsPerDay = 86400;

constexpr sys_days daysOf(std::int32_t y, std::int32_t m, std::int32_t d) {
    return sys_days(std::chrono::year(y) / std::chrono::month(static_cast<unsigned>(m)) / 1) + days(d - 1);
}

constexpr sys_days kEpoch = daysOf(1899, 12, 30);
constexpr auto kFirstDay = (daysOf(100, 1, 1) - kEpoch).count();
constexpr auto kLastDay = (daysOf(9999, 12, 31) - kEpoch).count();

CalendarTime calendarOf(std::int32_t day, std::int32_t seconds) {
    const std::chrono::year_month_day date(kEpoch + days(day));
    return {static_cast<int>(date.year()),
            static_cast<std::int32_t>(static_cast<unsigned>(date.month())),
            static_cast<std::int32_t>(static_cast<unsigned>(date.day())),
            seconds / 3600,
            seconds / 60 % 60,
            seconds % 60};
}

} // namespace

std::optional<CalendarTime> toCalendar(Date date) noexcept {
    const double whole = std::trunc(date.days);
    if (!(whole >= kFirstDay && whole <= kLastDay))
        return std::nullopt;
    auto day = static_cast<std::int32_t>(whole);
    auto seconds = static_cast<std::int32_t>(std::lround(std::fabs(date.days - whole) * kSecondsPerDay));
    if (seconds == kSecondsPerDay) {
        if (day == kLastDay) {
            seconds = kSecondsPerDay - 1; // the last second there is
        } else {
            ++day;
            seconds = 0;
        }
    }
    return calendarOf(day, seconds);
}

Date toDate(const CalendarTime& time) noexcept {
    const std::int64_t seconds =
        std::int64_t{time.hour} * 3600 + std::int64_t{time.minute} * 60 + time.second;
    const std::int64_t carried =
        seconds >= 0 ? seconds / kSecondsPerDay : (seconds - kSecondsPerDay + 1) / kSecondsPerDay;
    const auto day = (daysOf(time.year, time.month, time.day) - kEpoch).count() + carried;
    const double fraction = static_cast<double>(seconds - carried * kSecondsPerDay) / kSecondsPerDay;
    const auto whole = static_cast<double>(day);
    return {whole < 0 ? whole - fraction : whole + fraction};
}

} // namespace basic
