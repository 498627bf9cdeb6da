// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// UTF-8 and UTF-16, one code point at a time and whole. What is not valid never throws: it is marked, or it
// becomes U+FFFD.

#include <cstddef>
#include <string>
#include <string_view>

namespace basic {

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

struct Utf8Character {
    char32_t codePoint = kReplacementCharacter;
    std::size_t length = 1; // bytes; 1 for a byte that begins no valid sequence
    bool isValid = false;
};

// The code point at byte `at`, which must lie inside of `text`. Overlong forms, surrogates and numbers beyond
// U+10FFFF are not valid.
Utf8Character utf8At(std::string_view text, std::size_t at) noexcept;
bool isValidUtf8(std::string_view text) noexcept;
// Whether every surrogate has its partner.
bool isValidUtf16(std::u16string_view units) noexcept;

// A surrogate or a number beyond U+10FFFF is appended as U+FFFD.
void appendUtf8(std::string& text, char32_t codePoint);

std::u16string utf8ToUtf16(std::string_view text);
std::string utf16ToUtf8(std::u16string_view units);

} // namespace basic
