// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/DateLiteral.h"

#include "platform/basic/Calendar.h"
#include "platform/basic/TextCompare.h"

#include <charconv>
#include <vector>

namespace jet::sql {
namespace {

constexpr std::size_t kMaximumLength = 64;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The numbers between `separator`, one to four digits each; nothing when there is anything else.
std::vector<std::int32_t> numbers(std::string_view text, char separator) {
    std::vector<std::int32_t> found;
    for (;;) {
        const std::size_t end = std::min(text.find(separator), text.size());
        std::int32_t number = 0;
        const auto [stop, problem] = std::from_chars(text.data(), text.data() + end, number);
        if (end == 0 || end > 4 || problem != std::errc() || stop != text.data() + end || number < 0)
            return {};
        found.push_back(number);
        if (end == text.size())
            return found;
        text.remove_prefix(end + 1);
    }
}

bool takeDate(std::string_view text, basic::CalendarTime& time) {
    if (const auto parts = numbers(text, '/'); parts.size() == 3) {
        time.month = parts[0];
        time.day = parts[1];
        time.year = parts[2];
        return true;
    }
    const auto parts = numbers(text, '-');
    if (parts.size() != 3)
        return false;
    time.year = parts[0];
    time.month = parts[1];
    time.day = parts[2];
    return true;
}

// Cuts AM or PM off the end; answers how many hours it adds to a time before noon, -1 without one.
int takeHalfOfDay(std::string_view& text) {
    if (text.size() < 2)
        return -1;
    const std::string_view tail = text.substr(text.size() - 2);
    const bool isAfternoon = basic::equalText(tail, "PM");
    if (!isAfternoon && !basic::equalText(tail, "AM"))
        return -1;
    text = trimmed(text.substr(0, text.size() - 2));
    return isAfternoon ? 12 : 0;
}

bool takeTime(std::string_view text, basic::CalendarTime& time) {
    const int half = takeHalfOfDay(text);
    const auto parts = numbers(text, ':');
    if (parts.size() != 2 && parts.size() != 3)
        return false;
    time.hour = parts[0];
    if (half >= 0) {
        if (time.hour < 1 || time.hour > 12)
            return false;
        time.hour = time.hour % 12 + half;
    }
    time.minute = parts[1];
    time.second = parts.size() == 3 ? parts[2] : 0;
    return time.hour < 24 && time.minute < 60 && time.second < 60;
}

} // namespace

std::optional<basic::Date> parseDateLiteral(std::string_view literal) {
    const std::string_view text = trimmed(literal);
    if (text.size() > kMaximumLength)
        return std::nullopt;
    basic::CalendarTime time;
    const std::size_t blank = std::min(text.find(' '), text.size());
    const bool hasDate = text.substr(0, blank).find(':') == std::string_view::npos;
    const std::string_view timeText = hasDate ? trimmed(text.substr(blank)) : text;
    if (hasDate && !takeDate(text.substr(0, blank), time))
        return std::nullopt;
    if (!timeText.empty() && !takeTime(timeText, time))
        return std::nullopt;
    const basic::Date date = basic::toDate(time);
    // A day that does not exist was carried over into another one.
    return basic::toCalendar(date) == time ? std::optional(date) : std::nullopt;
}

} // namespace jet::sql
