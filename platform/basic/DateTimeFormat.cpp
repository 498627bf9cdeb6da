// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/DateTimeFormat.h"

#include <array>
#include <cctype>
#include <charconv>

namespace basic {
namespace {

bool isLetter(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Walks over one pattern, a run of equal letters or a quoted text at a time.
class PatternText {
public:
    PatternText(const CalendarTime& time, std::string_view pattern, const DateTimeFormat& format)
        : m_time(time), m_pattern(pattern), m_format(format), m_isTwelveHours(hasHalfDay()) {}

    std::string text() {
        while (m_at < m_pattern.size()) {
            const char c = m_pattern[m_at];
            if (c == '\'')
                addQuoted();
            else if (isLetter(c))
                addField(c, takeRun(c));
            else
                m_text.push_back(m_pattern[m_at++]);
        }
        return std::move(m_text);
    }

private:
    bool hasHalfDay() const noexcept {
        bool isQuoted = false;
        for (const char c : m_pattern) {
            if (c == '\'')
                isQuoted = !isQuoted;
            else if (!isQuoted && (c == 'A' || c == 'a'))
                return true;
        }
        return false;
    }

    std::size_t takeRun(char c) noexcept {
        const std::size_t begin = m_at;
        while (m_at < m_pattern.size() && m_pattern[m_at] == c)
            ++m_at;
        return m_at - begin;
    }

    void addQuoted() {
        if (m_pattern.substr(m_at, 2) == "''") {
            m_text.push_back('\'');
            m_at += 2;
            return;
        }
        for (++m_at; m_at < m_pattern.size(); ++m_at) {
            if (m_pattern[m_at] == '\'' && m_pattern.substr(m_at, 2) != "''")
                break;
            if (m_pattern[m_at] == '\'')
                ++m_at;
            m_text.push_back(m_pattern[m_at]);
        }
        if (m_at < m_pattern.size())
            ++m_at;
    }

    void addField(char letter, std::size_t count) {
        const std::size_t width = count >= 2 ? 2 : 1;
        switch (letter) {
        case 'd':
            return add(m_time.day, width);
        case 'M':
            return add(m_time.month, width);
        case 'y':
            return count == 2 ? add(m_time.year % 100, 2) : add(m_time.year, count == 1 ? 1 : 4);
        case 'H':
            return add(m_time.hour, width);
        case 'h':
            return add(m_isTwelveHours ? (m_time.hour + 11) % 12 + 1 : m_time.hour, width);
        case 'm':
            return add(m_time.minute, width);
        case 's':
            return add(m_time.second, width);
        case 'A':
        case 'a':
            return addHalfDay();
        case 't':
            return dropBlankBeforeZone();
        default:
            m_text.append(count, letter);
        }
    }

    // Lists show a date in every row, so this takes no detour over a text of its own.
    void add(std::int32_t number, std::size_t width) {
        std::array<char, 12> digits{};
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        const auto length = static_cast<std::size_t>(end - digits.data());
        m_text.append(length < width ? width - length : 0, '0').append(digits.data(), length);
    }

    void addHalfDay() {
        if (m_at < m_pattern.size() && (m_pattern[m_at] == 'P' || m_pattern[m_at] == 'p'))
            ++m_at;
        m_text += m_time.hour < 12 ? m_format.amText : m_format.pmText;
    }

    void dropBlankBeforeZone() {
        while (!m_text.empty() && m_text.back() == ' ')
            m_text.pop_back();
    }

    const CalendarTime& m_time;
    std::string_view m_pattern;
    const DateTimeFormat& m_format;
    bool m_isTwelveHours;
    std::size_t m_at = 0;
    std::string m_text;
};

} // namespace

std::string formatPattern(const CalendarTime& time, std::string_view pattern, const DateTimeFormat& format) {
    return PatternText(time, pattern, format).text();
}

std::string toText(Date date, const DateTimeFormat& format) {
    const std::optional<CalendarTime> time = toCalendar(date);
    if (!time)
        return format.invalidDate;
    const CalendarTime dayZero{};
    const bool isDayZero =
        time->year == dayZero.year && time->month == dayZero.month && time->day == dayZero.day;
    if (isDayZero)
        return formatPattern(*time, format.longTime, format);
    std::string text = formatPattern(*time, format.shortDate, format);
    if (time->hour != 0 || time->minute != 0 || time->second != 0)
        text.append(" ").append(formatPattern(*time, format.longTime, format));
    return text;
}

} // namespace basic
