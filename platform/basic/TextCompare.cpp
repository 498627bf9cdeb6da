// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/TextCompare.h"

#include "platform/basic/Utf8.h"

#include <algorithm>
#include <array>

namespace basic {
namespace {

// Upper-case letters from `first` to `last`. With an offset, the lower-case one lies that far above; offset 1
// means alternating pairs: every second code point, beginning with `first`, is the upper case of the next
// one.
struct UpperRange {
    char32_t first;
    char32_t last;
    char32_t offset;
};

constexpr std::array kUpperRanges{
    UpperRange{U'A', U'Z', 32},
    UpperRange{0x00C0, 0x00D6, 32}, // À to Ö; the multiplication sign in the
                                    // gap is no letter
    UpperRange{0x00D8, 0x00DE, 32}, // Ø to Þ
    UpperRange{0x0100, 0x012E, 1},
    UpperRange{0x0132, 0x0136, 1},
    UpperRange{0x0139, 0x0147, 1},
    UpperRange{0x014A, 0x0176, 1},
    UpperRange{0x0179, 0x017D, 1},
    UpperRange{0x0391, 0x03A1, 32}, // Greek
    UpperRange{0x03A3, 0x03AB, 32},
    UpperRange{0x0400, 0x040F, 80}, // Cyrillic
    UpperRange{0x0410, 0x042F, 32},
    UpperRange{0x0460, 0x0480, 1},
    UpperRange{0x048A, 0x04BE, 1},
    UpperRange{0x1E00, 0x1E94, 1},
    UpperRange{0x1EA0, 0x1EFE, 1},
};

char32_t lowerOf(char32_t c) noexcept {
    if (c < 0x80)
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    if (c == 0x0178) // Ÿ, whose small letter is in Latin-1
        return 0x00FF;
    const auto* range = std::find_if(kUpperRanges.begin(), kUpperRanges.end(),
                                     [c](const UpperRange& r) { return c >= r.first && c <= r.last; });
    if (range == kUpperRanges.end() || (range->offset == 1 && (c - range->first) % 2 != 0))
        return c;
    return c + range->offset;
}

} // namespace

std::string foldCase(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Character next = utf8At(text, at);
        if (next.isValid)
            appendUtf8(folded, lowerOf(next.codePoint));
        else
            folded.push_back(text[at]);
        at += next.length;
    }
    return folded;
}

int compareText(std::string_view left, std::string_view right) {
    return foldCase(left).compare(foldCase(right));
}

bool equalText(std::string_view left, std::string_view right) {
    return left == right || foldCase(left) == foldCase(right);
}

} // namespace basic
