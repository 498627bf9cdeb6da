// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Utf8.h"

namespace basic {
namespace {

constexpr char32_t kHighest = 0x10FFFF;

bool isSurrogate(char32_t c) noexcept {
    return c >= 0xD800 && c <= 0xDFFF;
}
bool isHighSurrogate(char16_t unit) noexcept {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowSurrogate(char16_t unit) noexcept {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// Length that a first byte announces, 0 for a byte that cannot be first.
std::size_t announcedLength(unsigned char first) noexcept {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

char32_t smallestOfLength(std::size_t length) noexcept {
    return length == 3 ? 0x800 : length == 4 ? 0x10000 : 0;
}

} // namespace

Utf8Character utf8At(std::string_view text, std::size_t at) noexcept {
    const auto first = static_cast<unsigned char>(text[at]);
    const std::size_t length = announcedLength(first);
    if (length == 1)
        return {first, 1, true};
    if (length == 0 || length > text.size() - at)
        return {};
    char32_t codePoint = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0U) != 0x80U)
            return {};
        codePoint = (codePoint << 6U) | (next & 0x3FU);
    }
    if (codePoint < smallestOfLength(length) || isSurrogate(codePoint) || codePoint > kHighest)
        return {};
    return {codePoint, length, true};
}

bool isValidUtf8(std::string_view text) noexcept {
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character next = utf8At(text, at);
        if (!next.isValid)
            return false;
        at += next.length;
    }
    return true;
}

bool isValidUtf16(std::u16string_view units) noexcept {
    for (std::size_t i = 0; i < units.size(); ++i) {
        if (!isSurrogate(units[i]))
            continue;
        if (!isHighSurrogate(units[i]) || i + 1 == units.size() || !isLowSurrogate(units[i + 1]))
            return false;
        ++i;
    }
    return true;
}

void appendUtf8(std::string& text, char32_t codePoint) {
    if (isSurrogate(codePoint) || codePoint > kHighest)
        codePoint = kReplacementCharacter;
    const auto tail = [&text, codePoint](unsigned shift) {
        text.push_back(static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU)));
    };
    if (codePoint < 0x80) {
        text.push_back(static_cast<char>(codePoint));
    } else if (codePoint < 0x800) {
        text.push_back(static_cast<char>(0xC0U | (codePoint >> 6U)));
        tail(0);
    } else if (codePoint < 0x10000) {
        text.push_back(static_cast<char>(0xE0U | (codePoint >> 12U)));
        tail(6);
        tail(0);
    } else {
        text.push_back(static_cast<char>(0xF0U | (codePoint >> 18U)));
        tail(12);
        tail(6);
        tail(0);
    }
}

std::u16string utf8ToUtf16(std::string_view text) {
    std::u16string units;
    units.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character next = utf8At(text, at);
        at += next.length;
        if (next.codePoint < 0x10000) {
            units.push_back(static_cast<char16_t>(next.codePoint));
            continue;
        }
        const char32_t above = next.codePoint - 0x10000;
        units.push_back(static_cast<char16_t>(0xD800U + (above >> 10U)));
        units.push_back(static_cast<char16_t>(0xDC00U + (above & 0x3FFU)));
    }
    return units;
}

std::string utf16ToUtf8(std::u16string_view units) {
    std::string text;
    text.reserve(units.size());
    for (std::size_t i = 0; i < units.size(); ++i) {
        const bool isPair = isHighSurrogate(units[i]) && i + 1 < units.size() && isLowSurrogate(units[i + 1]);
        if (!isPair) {
            appendUtf8(text, units[i]);
            continue;
        }
        appendUtf8(text, 0x10000U + ((units[i] - 0xD800U) << 10U) + (units[i + 1] - 0xDC00U));
        ++i;
    }
    return text;
}

} // namespace basic
