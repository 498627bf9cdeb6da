// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Comparison without case, for names in the settings store, in SQL and on the share. Case is folded by simple
// one-to-one pairs of the Latin, Greek and Cyrillic alphabets; bytes that are no valid UTF-8 stand for
// themselves. The same in every locale.

#include <string>
#include <string_view>

namespace basic {

// `text` in lower case.
std::string foldCase(std::string_view text);

// Negative, 0 or positive, by code points of the folded texts.
int compareText(std::string_view left, std::string_view right);
bool equalText(std::string_view left, std::string_view right);

// Orders the keys of a map without case.
struct TextLess {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const {
        return compareText(left, right) < 0;
    }
};

} // namespace basic
