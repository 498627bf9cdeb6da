// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Reads the source form of the string table; what a line looks like is said at the top of strings.tsv. Used
// when the program is built, so it is strict: a line that is not exactly as described, a number that does not
// ascend, an empty text or a text that is no UTF-8 is a RuntimeError that names the line.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace resources {

// Which of the two wordings are fixed to the letter.
enum class Mark { Fixed, German, Free };

struct SourceString {
    std::int32_t id = 0;
    std::string english;
    std::string german;
    Mark mark = Mark::Free;
};

std::vector<SourceString> parseStrings(std::string_view file);

} // namespace resources
