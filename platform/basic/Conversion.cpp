// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Conversion.h"

#include "platform/basic/RuntimeError.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

namespace basic {
namespace {

bool isBlank(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

// A number at the start of a text: its value and how much of the text it takes.
struct Leading {
    double value = 0;
    std::size_t length = 0;
};

std::size_t digitsFrom(std::string_view text, std::size_t at) noexcept {
    std::size_t end = at;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end - at;
}

// Length of "E+12" and the like at `at`; 0 when no digit follows, because then the letter is no exponent.
std::size_t exponentFrom(std::string_view text, std::size_t at) noexcept {
    if (at >= text.size() || std::string_view("eEdD").find(text[at]) == std::string_view::npos)
        return 0;
    const std::size_t sign = at + 1 < text.size() && (text[at + 1] == '+' || text[at + 1] == '-') ? 1 : 0;
    const std::size_t digits = digitsFrom(text, at + 1 + sign);
    return digits == 0 ? 0 : 1 + sign + digits;
}

// How many characters of `text` (no sign) make a decimal number; 0 for none.
std::size_t decimalLength(std::string_view text) noexcept {
    const std::size_t whole = digitsFrom(text, 0);
    std::size_t length = whole;
    std::size_t fraction = 0;
    if (length < text.size() && text[length] == '.') {
        fraction = digitsFrom(text, length + 1);
        length += 1 + fraction;
    }
    return whole + fraction == 0 ? 0 : length + exponentFrom(text, length);
}

// Whether a number written so that from_chars found it out of range is too small rather than too big.
bool underflows(const std::string& number) {
    const std::size_t mark = number.find('e');
    return mark != std::string::npos && mark + 1 < number.size() && number[mark + 1] == '-';
}

double decimalValue(std::string_view text) {
    std::string number(text);
    for (char& c : number)
        if (c == 'D' || c == 'd' || c == 'E')
            c = 'e';
    if (const std::size_t plus = number.find("e+"); plus != std::string::npos)
        number.erase(plus + 1, 1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (underflows(number))
            return 0;
        throw RuntimeError(kOverflow);
    }
    return value;
}

// "&HFFFF" is -1 and "&HFFFF&" 65535: up to four hexadecimal digits are a 16-bit number unless a trailing '&'
// makes it one of 32 bits.
Leading radixNumber(std::string_view text) {
    if (text.size() < 3 || text[0] != '&')
        return {};
    const bool isHex = text[1] == 'H' || text[1] == 'h';
    if (!isHex && text[1] != 'O' && text[1] != 'o')
        return {};
    std::uint32_t bits = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data() + 2, end, bits, isHex ? 16 : 8);
    if (result.ec == std::errc::result_out_of_range)
        throw RuntimeError(kOverflow);
    if (result.ec != std::errc())
        return {};
    const bool isLong = result.ptr != end && *result.ptr == '&';
    const auto length = static_cast<std::size_t>(result.ptr - text.data()) + (isLong ? 1 : 0);
    if (!isLong && bits <= 0xFFFF)
        return {static_cast<double>(static_cast<std::int16_t>(bits)), length};
    return {static_cast<double>(static_cast<std::int32_t>(bits)), length};
}

Leading leadingNumber(std::string_view text) {
    if (const Leading radix = radixNumber(text); radix.length > 0)
        return radix;
    const std::size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const std::size_t length = decimalLength(text.substr(sign));
    if (length == 0)
        return {};
    const double magnitude = decimalValue(text.substr(sign, length));
    return {text[0] == '-' ? -magnitude : magnitude, sign + length};
}

std::string_view trimmed(std::string_view text) noexcept {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<double> wholeNumber(std::string_view text) {
    const std::string_view inner = trimmed(text);
    const Leading number = leadingNumber(inner);
    if (number.length == 0 || number.length != inner.size())
        return std::nullopt;
    return number.value;
}

} // namespace

double Val(std::string_view text) {
    std::string packed;
    packed.reserve(text.size());
    for (const char c : text)
        if (!isBlank(c))
            packed.push_back(c);
    return leadingNumber(packed).value;
}

std::int32_t CLng(double value) {
    const double rounded = std::nearbyint(value);
    constexpr double kLow = std::numeric_limits<std::int32_t>::min();
    constexpr double kHigh = std::numeric_limits<std::int32_t>::max();
    if (!(rounded >= kLow && rounded <= kHigh))
        throw RuntimeError(kOverflow);
    return static_cast<std::int32_t>(rounded);
}

std::int32_t CLng(std::string_view text) {
    const std::optional<double> number = wholeNumber(text);
    if (!number)
        throw RuntimeError(kTypeMismatch);
    return CLng(*number);
}

bool IsNumeric(std::string_view text) {
    try {
        return wholeNumber(text).has_value();
    } catch (const RuntimeError&) {
        return false; // beyond every numeric type, so no number for the platform either
    }
}

} // namespace basic
