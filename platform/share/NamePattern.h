// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file-name pattern of the server's kind: * for any run of characters, ? for one character, everything else
// for itself, compared without case. "*.*" matches every name, also one without a dot.

#include <string>
#include <string_view>

namespace share {

class NamePattern {
public:
    explicit NamePattern(std::string_view pattern);
    bool matches(std::string_view name) const;

private:
    std::u16string m_pattern; // folded, so that one unit is one character for ?
};

} // namespace share
