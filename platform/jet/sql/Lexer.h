// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Cuts a statement into tokens. The statement must outlive the lexer. Errors are those of failSyntax().

#include "platform/jet/sql/Token.h"

#include <string_view>

namespace jet::sql {

class Lexer {
public:
    // Longer statements are refused.
    static constexpr std::size_t kMaximumLength = 65'536;

    explicit Lexer(std::string_view statement);

    // TokenKind::End again and again at the end.
    Token next();

private:
    Token word();
    Token bracketed();
    Token number();
    Token text(char quote);
    Token date();
    Token symbol();
    // The end of a piece that is closed by `closing`.
    std::size_t closedBy(char closing, std::string_view problem) const;
    char peek(std::size_t ahead) const noexcept;

    std::string_view m_statement;
    std::size_t m_position = 0;
};

} // namespace jet::sql
