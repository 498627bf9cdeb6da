// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An expression as parsed: a tree of literals, columns and operations. Each node knows the depth of the tree
// below it, which the parser bounds, so that walking and destroying one never runs out of stack. The binder
// fills in the columns.

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"

#include <memory>
#include <string>
#include <variant>

namespace jet::sql {

struct Expression;
using ExpressionPointer = std::unique_ptr<Expression>;

enum class Operator { Concatenate, Equal, NotEqual, Less, Greater, LessOrEqual, GreaterOrEqual, And, Or };

struct Literal {
    basic::Variant value;
};

struct ColumnName {
    std::string table; // empty without one
    std::string name;
    const Column* column = nullptr;
};

struct Operation {
    Operator kind{};
    ExpressionPointer left;
    ExpressionPointer right;
};

struct Negation {
    ExpressionPointer operand;
};

struct NullTest {
    ExpressionPointer operand;
    bool isNegated = false;
};

struct Expression {
    std::variant<Literal, ColumnName, Operation, Negation, NullTest> node;
    int depth = 1;
};

} // namespace jet::sql
