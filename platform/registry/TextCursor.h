// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A place in a text and the number of its line. Every look and step is checked against the end; fail() throws
// a StoreError that names file and line. The text must outlive the cursor.

#include <cstddef>
#include <string>
#include <string_view>

namespace registry {

class TextCursor {
public:
    TextCursor(std::string_view text, std::string_view source) : m_text(text), m_source(source) {}

    bool atEnd() const noexcept { return m_at == m_text.size(); }
    // At the end of the text or of a line (LF or CRLF).
    bool atLineEnd() const noexcept;
    char peek() const noexcept { return atEnd() ? '\0' : m_text[m_at]; }
    // Steps over `expected` when it is next.
    bool take(char expected) noexcept;
    bool takeWord(std::string_view expected) noexcept; // ASCII letters compare without case
    void skipBlanks() noexcept;
    void skipLineEnd() noexcept;
    // What is left of the line; the cursor is at the line's end afterwards.
    std::string_view takeRestOfLine() noexcept;
    // Blanks, a comment or nothing up to the end of the line, and the line's end; anything else fails.
    void expectLineEnd();
    // A text in quotation marks, which may go on over line ends; the opening mark is next.
    std::string takeQuoted();
    // Hexadecimal digits, at least one and at most `most`.
    std::uint32_t takeHex(std::size_t most);

    [[noreturn]] void fail(std::string_view problem) const;

private:
    void step() noexcept;

    std::string_view m_text;
    std::string_view m_source;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
};

} // namespace registry
