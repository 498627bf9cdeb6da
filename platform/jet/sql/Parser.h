// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Parses one statement: SELECT, INSERT or DELETE on one table. Errors are those of failSyntax(). The
// statement must outlive the parser.

#include "platform/jet/sql/ExpressionParser.h"
#include "platform/jet/sql/Statement.h"
#include "platform/jet/sql/TokenStream.h"

#include <string_view>

namespace jet::sql {

class Parser {
public:
    static constexpr std::size_t kMaximumItems = 255; // as many as a table can have columns

    explicit Parser(std::string_view statement) : m_tokens(statement), m_expressions(m_tokens) {}

    Statement parse();

private:
    Statement statement();
    Select select();
    Insert insert();
    Delete deletion();
    SelectItem item();
    std::string alias();
    ExpressionPointer condition();
    std::vector<OrderColumn> order();
    OrderColumn orderColumn();
    basic::Variant value();

    template <typename Element>
    auto list(Element&& element);

    TokenStream m_tokens;
    ExpressionParser m_expressions;
};

} // namespace jet::sql
