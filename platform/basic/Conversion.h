// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Text to number by the platform's rules. The decimal separator is always '.', so that stored settings and
// typed text read the same in every locale; digit grouping and currency signs are no part of a number here.

#include <cstdint>
#include <string_view>

namespace basic {

// The number that `text` begins with, 0 without one. Blanks, tabs and line ends count as not there, even
// between digits; exponents are marked E or D; &H and &O introduce hexadecimal and octal numbers of 16 or 32
// bits. Error 6 (overflow) beyond the range of a double.
double Val(std::string_view text);

// Rounds half to even. Error 6 when the result does not fit 32 bits.
std::int32_t CLng(double value);
// Error 13 (type mismatch) unless the whole text is a number, blanks around it allowed.
std::int32_t CLng(std::string_view text);

// Whether the whole text is a number: what CLng() takes, of any size.
bool IsNumeric(std::string_view text);

} // namespace basic
