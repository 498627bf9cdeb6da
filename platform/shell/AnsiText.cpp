// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/AnsiText.h"

#include <algorithm>
#include <array>

namespace shell {
namespace {

// Characters of the bytes 0x80 to 0x9F; every other byte is its own number.
constexpr char16_t kFirst = 0x80;
constexpr std::array<char16_t, 32> kMiddle = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                              0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ansiOf(char16_t character) {
    if (character < kFirst || (character >= kFirst + kMiddle.size() && character <= 0xFF))
        return static_cast<char>(character);
    const auto found = std::find(kMiddle.begin(), kMiddle.end(), character);
    return found == kMiddle.end() ? '?' : static_cast<char>(kFirst + (found - kMiddle.begin()));
}

char16_t characterOf(char byte) {
    const auto number = static_cast<unsigned char>(byte);
    const bool isMiddle = number >= kFirst && number < kFirst + kMiddle.size();
    return isMiddle ? kMiddle[number - kFirst] : number;
}

} // namespace

std::string toAnsi(std::u16string_view text) {
    std::string result(text.size(), '\0');
    std::transform(text.begin(), text.end(), result.begin(), ansiOf);
    return result;
}

std::u16string fromAnsi(std::string_view text) {
    std::u16string result(text.size(), u'\0');
    std::transform(text.begin(), text.end(), result.begin(), characterOf);
    return result;
}

} // namespace shell
