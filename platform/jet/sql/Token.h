// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One piece of a statement: what kind, its content without quotes or brackets, and where it begins.

#include "platform/basic/Variant.h"

#include <cstddef>
#include <string>

namespace jet::sql {

enum class TokenKind {
    Word,   // keyword or name
    Name,   // [bracketed]: never a keyword
    Value,  // number, 'text' or #date#: `value` holds it
    Symbol, // ( ) , . ; * & - = <> < > <= >=
    End,
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::string text;
    basic::Variant value;
    std::size_t position = 0; // bytes from the beginning of the statement
};

} // namespace jet::sql
