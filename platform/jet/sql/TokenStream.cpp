// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/TokenStream.h"

#include "platform/basic/TextCompare.h"
#include "platform/jet/sql/SyntaxError.h"

#include <algorithm>
#include <array>
#include <utility>

namespace jet::sql {
namespace {

constexpr std::array<std::string_view, 26> kKeywords{
    "ALL",  "AND",   "AS",     "ASC",    "BETWEEN", "BY",     "DELETE", "DESC", "DISTINCT",
    "FROM", "GROUP", "HAVING", "IN",     "INSERT",  "INTO",   "IS",     "LIKE", "NOT",
    "NULL", "OR",    "ORDER",  "SELECT", "UPDATE",  "VALUES", "WHERE",  "XOR"};

bool isReserved(std::string_view word) {
    return std::ranges::any_of(kKeywords,
                               [word](std::string_view keyword) { return basic::equalText(keyword, word); });
}

} // namespace

Token TokenStream::take() {
    return std::exchange(m_token, m_lexer.next());
}

bool TokenStream::isKeyword(std::string_view keyword) const {
    return m_token.kind == TokenKind::Word && basic::equalText(m_token.text, keyword);
}

bool TokenStream::isSymbol(std::string_view symbol) const {
    return m_token.kind == TokenKind::Symbol && m_token.text == symbol;
}

bool TokenStream::accept(std::string_view keyword) {
    if (!isKeyword(keyword))
        return false;
    take();
    return true;
}

bool TokenStream::acceptSymbol(std::string_view symbol) {
    if (!isSymbol(symbol))
        return false;
    take();
    return true;
}

void TokenStream::expect(std::string_view keyword) {
    if (!accept(keyword))
        fail(std::string(keyword) + " is expected");
}

void TokenStream::expectSymbol(std::string_view symbol) {
    if (!acceptSymbol(symbol))
        fail("\"" + std::string(symbol) + "\" is expected");
}

std::string TokenStream::expectName() {
    if (!isName())
        fail("a name is expected");
    return take().text;
}

bool TokenStream::isName() const {
    return m_token.kind == TokenKind::Name || (m_token.kind == TokenKind::Word && !isReserved(m_token.text));
}

void TokenStream::fail(std::string_view problem) const {
    failSyntax(m_statement, m_token.position, problem);
}

} // namespace jet::sql
