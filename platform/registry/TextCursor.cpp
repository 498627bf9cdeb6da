// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/TextCursor.h"

#include "platform/basic/TextCompare.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <charconv>

namespace registry {

void TextCursor::step() noexcept {
    if (m_text[m_at++] == '\n')
        ++m_line;
}

bool TextCursor::atLineEnd() const noexcept {
    return atEnd() || m_text[m_at] == '\n' || m_text.substr(m_at, 2) == "\r\n";
}

bool TextCursor::take(char expected) noexcept {
    if (atEnd() || m_text[m_at] != expected)
        return false;
    step();
    return true;
}

bool TextCursor::takeWord(std::string_view expected) noexcept {
    if (!basic::equalText(m_text.substr(m_at, expected.size()), expected))
        return false;
    m_at += expected.size();
    return true;
}

void TextCursor::skipBlanks() noexcept {
    while (!atLineEnd() && (peek() == ' ' || peek() == '\t' || peek() == '\r'))
        step();
}

void TextCursor::skipLineEnd() noexcept {
    take('\r');
    take('\n');
}

std::string_view TextCursor::takeRestOfLine() noexcept {
    const std::size_t begin = m_at;
    while (!atLineEnd())
        step();
    return m_text.substr(begin, m_at - begin);
}

void TextCursor::expectLineEnd() {
    skipBlanks();
    if (peek() == ';')
        takeRestOfLine();
    if (!atLineEnd())
        fail("unexpected text at the end of the line");
    skipLineEnd();
}

std::string TextCursor::takeQuoted() {
    const TextCursor opening = *this;
    std::string text;
    step();
    while (!take('"')) {
        if (atEnd())
            opening.fail("the closing quotation mark is missing");
        // A backslash before anything else than a backslash or a quotation mark stands for itself.
        if (peek() == '\\' && m_at + 1 < m_text.size() &&
            (m_text[m_at + 1] == '\\' || m_text[m_at + 1] == '"'))
            step();
        text.push_back(peek());
        step();
    }
    return text;
}

std::uint32_t TextCursor::takeHex(std::size_t most) {
    std::uint32_t number = 0;
    const char* const begin = m_text.data() + m_at;
    const char* const end = begin + std::min(most, m_text.size() - m_at);
    const auto result = std::from_chars(begin, end, number, 16);
    if (result.ec != std::errc())
        fail("hexadecimal digits expected");
    m_at += static_cast<std::size_t>(result.ptr - begin);
    return number;
}

void TextCursor::fail(std::string_view problem) const {
    throw StoreError(kCorrupt, std::string(m_source) + ": line " + std::to_string(m_line) + ": " +
                                   std::string(problem));
}

} // namespace registry
