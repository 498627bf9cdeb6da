// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/Lexer.h"

#include "platform/jet/sql/DateLiteral.h"
#include "platform/jet/sql/SyntaxError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace jet::sql {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
// Letters of other alphabets are taken as they are.
bool isWordStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}
bool isWordPart(char c) {
    return isWordStart(c) || isDigit(c) || c == '$';
}

std::size_t endOfDigits(std::string_view text, std::size_t from) {
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

// Digits, a fraction, an exponent; an E without digits after it belongs to what follows.
std::size_t endOfNumber(std::string_view text, std::size_t from) {
    std::size_t end = endOfDigits(text, from);
    if (end < text.size() && text[end] == '.')
        end = endOfDigits(text, end + 1);
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t digits = end + 1;
        if (digits < text.size() && (text[digits] == '+' || text[digits] == '-'))
            ++digits;
        if (digits < text.size() && isDigit(text[digits]))
            end = endOfDigits(text, digits);
    }
    return end;
}

} // namespace

Lexer::Lexer(std::string_view statement) : m_statement(statement) {
    if (statement.size() > kMaximumLength)
        failSyntax(statement, kMaximumLength, "the statement is too long");
}

Token Lexer::next() {
    while (m_position < m_statement.size() && isBlank(m_statement[m_position]))
        ++m_position;
    if (m_position == m_statement.size())
        return {TokenKind::End, {}, {}, m_position};
    const char c = peek(0);
    if (isWordStart(c))
        return word();
    if (isDigit(c) || (c == '.' && isDigit(peek(1))))
        return number();
    if (c == '[')
        return bracketed();
    if (c == '\'' || c == '"')
        return text(c);
    return c == '#' ? date() : symbol();
}

Token Lexer::word() {
    const std::size_t start = m_position;
    while (m_position < m_statement.size() && isWordPart(m_statement[m_position]))
        ++m_position;
    return {TokenKind::Word, std::string(m_statement.substr(start, m_position - start)), {}, start};
}

Token Lexer::bracketed() {
    const std::size_t start = m_position;
    const std::size_t end = closedBy(']', "a bracket is not closed");
    if (end == start + 1)
        failSyntax(m_statement, start, "an empty name");
    m_position = end + 1;
    return {TokenKind::Name, std::string(m_statement.substr(start + 1, end - start - 1)), {}, start};
}

Token Lexer::number() {
    const std::size_t start = m_position;
    m_position = endOfNumber(m_statement, start);
    const std::string_view digits = m_statement.substr(start, m_position - start);
    double value = 0;
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (problem != std::errc() || end != digits.data() + digits.size())
        failSyntax(m_statement, start, "a number that cannot be read");
    const bool isWhole = std::all_of(digits.begin(), digits.end(), isDigit);
    if (isWhole && value <= std::numeric_limits<std::int32_t>::max())
        return {TokenKind::Value, std::string(digits), static_cast<std::int32_t>(value), start};
    return {TokenKind::Value, std::string(digits), value, start};
}

// A doubled quote stands for itself.
Token Lexer::text(char quote) {
    const std::size_t start = m_position;
    std::string content;
    for (;;) {
        const std::size_t end = m_statement.find(quote, m_position + 1);
        if (end == std::string_view::npos)
            failSyntax(m_statement, start, "a text is not closed");
        content.append(m_statement.substr(m_position + 1, end - m_position - 1));
        m_position = end + 1;
        if (peek(0) != quote)
            break;
        content.push_back(quote);
    }
    return {TokenKind::Value, {}, std::move(content), start};
}

Token Lexer::date() {
    const std::size_t start = m_position;
    const std::size_t end = closedBy('#', "a date is not closed");
    const auto value = parseDateLiteral(m_statement.substr(start + 1, end - start - 1));
    if (!value)
        failSyntax(m_statement, start, "a date that cannot be read");
    m_position = end + 1;
    return {TokenKind::Value, {}, *value, start};
}

Token Lexer::symbol() {
    constexpr std::array<std::string_view, 14> kSymbols{"<>", "<=", ">=", "<", ">", "=", "(",
                                                        ")",  ",",  ".",  ";", "*", "&", "-"};
    const std::string_view rest = m_statement.substr(m_position);
    const auto* found = std::find_if(kSymbols.begin(), kSymbols.end(),
                                     [rest](std::string_view symbol) { return rest.starts_with(symbol); });
    if (found == kSymbols.end())
        failSyntax(m_statement, m_position, "an unexpected character");
    const std::size_t start = m_position;
    m_position += found->size();
    return {TokenKind::Symbol, std::string(*found), {}, start};
}

std::size_t Lexer::closedBy(char closing, std::string_view problem) const {
    const std::size_t end = m_statement.find(closing, m_position + 1);
    if (end == std::string_view::npos)
        failSyntax(m_statement, m_position, problem);
    return end;
}

char Lexer::peek(std::size_t ahead) const noexcept {
    return m_position + ahead < m_statement.size() ? m_statement[m_position + ahead] : '\0';
}

} // namespace jet::sql
