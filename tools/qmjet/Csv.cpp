// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmjet/Csv.h"

#include "platform/basic/Calendar.h"
#include "platform/basic/VariantText.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <utility>

namespace qmjet {
namespace {

template <typename Number>
std::string shortest(Number number) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

// A number that is no date is shown as the number.
std::string dateText(basic::Date date) {
    const auto time = basic::toCalendar(date);
    if (!time)
        return shortest(date.days);
    std::array<char, 64> buffer{};
    const int length =
        std::snprintf(buffer.data(), buffer.size(), "%04d-%02d-%02d %02d:%02d:%02d", time->year, time->month,
                      time->day, time->hour, time->minute, time->second);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string plainText(const basic::Variant& value) {
    if (const auto* truth = std::get_if<bool>(&value))
        return *truth ? "1" : "0";
    if (const auto* single = std::get_if<float>(&value))
        return shortest(*single);
    if (const auto* number = std::get_if<double>(&value))
        return shortest(*number);
    if (const auto* date = std::get_if<basic::Date>(&value))
        return dateText(*date);
    return basic::toText(value, basic::DateTimeFormat());
}

} // namespace

void CsvLine::add(const basic::Variant& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        addText(*text);
        return;
    }
    separate();
    if (!basic::isNull(value))
        m_line.append(plainText(value));
}

void CsvLine::addText(std::string_view text) {
    separate();
    if (!text.empty() && text.find_first_of(",\"\r\n") == std::string_view::npos) {
        m_line.append(text);
        return;
    }
    m_line.push_back('"');
    for (const char c : text) {
        if (c == '"')
            m_line.push_back('"');
        m_line.push_back(c);
    }
    m_line.push_back('"');
}

std::string CsvLine::take() {
    m_line.append("\r\n");
    m_hasField = false;
    return std::exchange(m_line, {});
}

void CsvLine::separate() {
    if (m_hasField)
        m_line.push_back(',');
    m_hasField = true;
}

} // namespace qmjet
