// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The statements as parsed.

#include "platform/jet/sql/Expression.h"

#include <string>
#include <variant>
#include <vector>

namespace jet::sql {

struct AllColumns {};
struct CountOfRows {
    std::string alias;
};
struct SelectedExpression {
    ExpressionPointer expression;
    std::string alias; // empty without one
};
using SelectItem = std::variant<AllColumns, CountOfRows, SelectedExpression>;

struct OrderColumn {
    ColumnName name;
    bool isAscending = true;
};

struct Select {
    std::vector<SelectItem> items;
    std::string table;
    ExpressionPointer condition; // null without one
    std::vector<OrderColumn> order;
};

struct Insert {
    std::string table;
    std::vector<std::string> columns; // as many as values
    std::vector<basic::Variant> values;
};

struct Delete {
    std::string table;
    ExpressionPointer condition; // null without one
};

using Statement = std::variant<Select, Insert, Delete>;

} // namespace jet::sql
