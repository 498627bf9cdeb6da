// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Rows of values as comma-separated text after RFC 4180, in UTF-8, each line ended by CR LF. Null is an empty
// field, an empty text is "". Dates are YYYY-MM-DD HH:MM:SS, Booleans 0 and 1, binary values upper-case
// hexadecimal digits, identifiers in braces, numbers the shortest text that gives the same number again.

#include "platform/basic/Variant.h"

#include <string>
#include <string_view>

namespace qmjet {

class CsvLine {
public:
    void add(const basic::Variant& value);
    void addText(std::string_view text);
    // The line with its end; begins a new one.
    std::string take();

private:
    void separate();

    std::string m_line;
    bool m_hasField = false;
};

} // namespace qmjet
