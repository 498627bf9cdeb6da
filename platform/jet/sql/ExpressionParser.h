// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Parses one expression off a token stream. Binding from loose to tight: OR, AND, NOT, comparison and IS
// NULL, &, then literals, columns and parentheses. Trees deeper than a bound are refused, and so are
// parentheses and NOTs nested deeper, before they can use up the stack.

#include "platform/jet/sql/Expression.h"
#include "platform/jet/sql/TokenStream.h"

#include <optional>

namespace jet::sql {

class ExpressionParser {
public:
    static constexpr int kMaximumDepth = 100;

    explicit ExpressionParser(TokenStream& tokens) : m_tokens(tokens) {}

    ExpressionPointer parse() { return disjunction(); }
    // A number with its sign, a text, a date, TRUE, FALSE or NULL.
    std::optional<basic::Variant> literal();

private:
    ExpressionPointer disjunction();
    ExpressionPointer conjunction();
    ExpressionPointer negation();
    ExpressionPointer comparison();
    ExpressionPointer concatenation();
    ExpressionPointer primary();
    ExpressionPointer columnName();

    template <typename Node>
    ExpressionPointer made(Node node, int depth);
    ExpressionPointer operation(Operator kind, ExpressionPointer left, ExpressionPointer right);
    std::optional<Operator> comparisonOperator();
    basic::Variant negativeNumber();

    TokenStream& m_tokens;
    int m_nesting = 0;
};

} // namespace jet::sql
