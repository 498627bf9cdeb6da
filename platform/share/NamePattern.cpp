// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/NamePattern.h"

#include "platform/basic/TextCompare.h"
#include "platform/basic/Utf8.h"

namespace share {
namespace {

std::u16string folded(std::string_view text) {
    return basic::utf8ToUtf16(basic::foldCase(text));
}

} // namespace

NamePattern::NamePattern(std::string_view pattern) : m_pattern(folded(pattern == "*.*" ? "*" : pattern)) {}

// Remembers only the last star and tries a longer run for it on a mismatch: enough, because an earlier star
// could not do better, and the time stays within the product of both lengths.
bool NamePattern::matches(std::string_view name) const {
    const std::u16string text = folded(name);
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = std::u16string::npos;
    std::size_t runEnd = 0;
    while (t < text.size()) {
        if (p < m_pattern.size() && m_pattern[p] == u'*') {
            star = p++;
            runEnd = t;
        } else if (p < m_pattern.size() && (m_pattern[p] == u'?' || m_pattern[p] == text[t])) {
            ++p;
            ++t;
        } else if (star != std::u16string::npos) {
            p = star + 1;
            t = ++runEnd;
        } else {
            return false;
        }
    }
    return m_pattern.find_first_not_of(u'*', p) == std::u16string::npos;
}

} // namespace share
