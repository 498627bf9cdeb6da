// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A lexer with one token of look-ahead, and the questions a parser asks it. Keywords compare without case.
// The statement must outlive it. Errors are those of failSyntax().

#include "platform/jet/sql/Lexer.h"

#include <string>
#include <string_view>

namespace jet::sql {

class TokenStream {
public:
    explicit TokenStream(std::string_view statement)
        : m_statement(statement), m_lexer(statement), m_token(m_lexer.next()) {}

    const Token& peek() const noexcept { return m_token; }
    Token take();

    bool isKeyword(std::string_view keyword) const;
    bool isSymbol(std::string_view symbol) const;
    // Goes over the token if it is this one.
    bool accept(std::string_view keyword);
    bool acceptSymbol(std::string_view symbol);
    void expect(std::string_view keyword);
    void expectSymbol(std::string_view symbol);
    // A table's or column's name: bracketed, or a word that is no keyword.
    std::string expectName();
    bool isName() const;

    [[noreturn]] void fail(std::string_view problem) const;

private:
    std::string_view m_statement;
    Lexer m_lexer;
    Token m_token;
};

} // namespace jet::sql
