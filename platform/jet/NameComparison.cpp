// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/NameComparison.h"

namespace jet {
namespace {

constexpr unsigned char kLatin1Upper = 0xC3; // first UTF-8 byte of U+00C0 to U+00FF

// The lower-case form of a UTF-8 byte, given the byte before it. U+00C0..U+00DE without the multiplication
// sign have their small letters 0x20 further on.
unsigned char folded(unsigned char before, unsigned char byte) noexcept {
    const bool isAsciiUpper = byte >= 'A' && byte <= 'Z';
    const bool isLatinUpper = before == kLatin1Upper && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
    return isAsciiUpper || isLatinUpper ? static_cast<unsigned char>(byte + 0x20) : byte;
}

} // namespace

bool equalNames(std::string_view left, std::string_view right) noexcept {
    if (left.size() != right.size())
        return false;
    unsigned char beforeLeft = 0;
    unsigned char beforeRight = 0;
    for (std::size_t i = 0; i < left.size(); ++i) {
        const auto a = static_cast<unsigned char>(left[i]);
        const auto b = static_cast<unsigned char>(right[i]);
        if (folded(beforeLeft, a) != folded(beforeRight, b))
            return false;
        beforeLeft = a;
        beforeRight = b;
    }
    return true;
}

} // namespace jet
