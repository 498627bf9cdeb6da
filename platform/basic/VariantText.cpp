// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/VariantText.h"

#include "platform/basic/RuntimeError.h"

#include <charconv>
#include <cmath>
#include <string_view>
#include <type_traits>

namespace basic {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

void appendHex(std::string& text, std::uint8_t byte) {
    text.push_back(kHexDigits[byte >> 4U]);
    text.push_back(kHexDigits[byte & 0xFU]);
}

// `digits` (of any length) with the separator `places` before the end, without trailing zeros.
std::string fixedPoint(std::string digits, std::size_t places, bool isNegative, std::string_view separator) {
    if (digits.size() <= places)
        digits.insert(0, places + 1 - digits.size(), '0');
    std::string fraction = digits.substr(digits.size() - places);
    digits.resize(digits.size() - places);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    const bool isZero = digits.find_first_not_of('0') == std::string::npos && fraction.empty();
    std::string text = isNegative && !isZero ? "-" : "";
    text += digits;
    if (!fraction.empty())
        text.append(separator).append(fraction);
    return text;
}

// A finite number as significant digits without trailing zeros, and the power of ten of the first digit.
struct Scientific {
    bool isNegative = false;
    std::string digits;
    int exponent = 0;
};

Scientific scientific(double value, int significant) {
    char buffer[40] = {};
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                       std::chars_format::scientific, significant - 1);
    const std::string_view text(buffer, static_cast<std::size_t>(written.ptr - buffer));
    const std::size_t mark = text.find('e');
    Scientific parts{value < 0, {}, 0};
    for (const char c : text.substr(0, mark))
        if (c != '.')
            parts.digits.push_back(c);
    parts.digits.erase(std::max<std::size_t>(parts.digits.find_last_not_of('0') + 1, 1));
    const std::size_t number = mark + (text[mark + 1] == '+' ? 2 : 1);
    std::from_chars(text.data() + number, text.data() + text.size(), parts.exponent);
    return parts;
}

std::string exponentText(const Scientific& parts, std::string_view separator) {
    std::string text = parts.isNegative ? "-" : "";
    text.push_back(parts.digits.front());
    if (parts.digits.size() > 1)
        text.append(separator).append(parts.digits, 1);
    const std::string power = std::to_string(std::abs(parts.exponent));
    text.append(parts.exponent < 0 ? "E-" : "E+").append(power.size() < 2 ? "0" : "").append(power);
    return text;
}

std::string floatingText(double value, int significant, std::string_view separator) {
    if (std::isnan(value))
        return "1.#QNAN";
    if (std::isinf(value))
        return value < 0 ? "-1.#INF" : "1.#INF";
    Scientific parts = scientific(value, significant);
    const int places = static_cast<int>(parts.digits.size()) - 1 - parts.exponent;
    if (parts.exponent >= significant || places > significant)
        return exponentText(parts, separator);
    if (places < 0)
        parts.digits.append(static_cast<std::size_t>(-places), '0');
    return fixedPoint(parts.digits, places > 0 ? static_cast<std::size_t>(places) : 0, parts.isNegative,
                      separator);
}

std::string currencyText(Currency value, std::string_view separator) {
    std::string digits = std::to_string(value.tenThousandths);
    const bool isNegative = digits.front() == '-';
    return fixedPoint(isNegative ? digits.substr(1) : digits, 4, isNegative, separator);
}

// The magnitude in decimal, by repeated division of the four words by ten.
std::string decimalText(const Decimal& value, std::string_view separator) {
    auto words = value.magnitude;
    std::string digits;
    do {
        std::uint64_t remainder = 0;
        for (std::uint32_t& word : words) {
            const std::uint64_t part = (remainder << 32U) | word;
            word = static_cast<std::uint32_t>(part / 10);
            remainder = part % 10;
        }
        digits.insert(digits.begin(), static_cast<char>('0' + remainder));
    } while (words != decltype(words){});
    return fixedPoint(digits, value.scale, value.negative, separator);
}

std::string guidText(const Guid& value) {
    constexpr std::array<std::size_t, 16> kOrder{3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    std::string text = "{";
    for (std::size_t i = 0; i < kOrder.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            text.push_back('-');
        appendHex(text, value.bytes[kOrder[i]]);
    }
    return text + "}";
}

std::string binaryText(const Binary& value) {
    std::string text;
    text.reserve(value.size() * 2);
    for (const std::uint8_t byte : value)
        appendHex(text, byte);
    return text;
}

struct TextOf {
    const DateTimeFormat& format;

    std::string operator()(Null) const { throw RuntimeError(kInvalidUseOfNull); }
    std::string operator()(bool value) const { return value ? "True" : "False"; }
    std::string operator()(float value) const {
        return floatingText(static_cast<double>(value), kSingleDigits, format.decimalSeparator);
    }
    std::string operator()(double value) const {
        return floatingText(value, kDoubleDigits, format.decimalSeparator);
    }
    std::string operator()(Currency value) const { return currencyText(value, format.decimalSeparator); }
    std::string operator()(Date value) const { return toText(value, format); }
    std::string operator()(const Guid& value) const { return guidText(value); }
    std::string operator()(const Decimal& value) const { return decimalText(value, format.decimalSeparator); }
    std::string operator()(const Binary& value) const { return binaryText(value); }
    std::string operator()(const std::string& value) const { return value; }
    template <typename Integer>
    requires(std::is_integral_v<Integer> && !std::is_same_v<Integer, bool>) std::string
    operator()(Integer value) const {
        return std::to_string(value);
    }
};

} // namespace

std::string toText(const Variant& value, const DateTimeFormat& format) {
    return std::visit(TextOf{format}, value);
}

} // namespace basic
