// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/Evaluator.h"

#include "platform/basic/VariantText.h"
#include "platform/jet/sql/ValueComparison.h"

#include <compare>
#include <optional>

namespace jet::sql {
namespace {

basic::Variant fromTruth(std::optional<bool> truth) {
    return truth ? basic::Variant(*truth) : basic::Variant(basic::Null{});
}

// Every number but 0 is true.
std::optional<bool> truthOf(const basic::Variant& value) {
    if (classOf(value) != ValueClass::Number)
        return std::nullopt;
    return numberOf(value) != 0;
}

std::optional<bool> compared(Operator kind, std::partial_ordering order) {
    if (order == std::partial_ordering::unordered)
        return std::nullopt;
    switch (kind) {
    case Operator::Equal:
        return std::is_eq(order);
    case Operator::NotEqual:
        return std::is_neq(order);
    case Operator::Less:
        return std::is_lt(order);
    case Operator::Greater:
        return std::is_gt(order);
    case Operator::LessOrEqual:
        return std::is_lteq(order);
    default:
        return std::is_gteq(order);
    }
}

} // namespace

bool Evaluator::holds(const Expression& condition, const RowView& row) {
    return truthOf(value(condition, row)).value_or(false);
}

basic::Variant Evaluator::value(const Expression& expression, const RowView& row) {
    if (const auto* literal = std::get_if<Literal>(&expression.node))
        return literal->value;
    if (const auto* name = std::get_if<ColumnName>(&expression.node))
        return m_decoder.value(row, *name->column);
    if (const auto* test = std::get_if<NullTest>(&expression.node))
        return basic::isNull(value(*test->operand, row)) != test->isNegated;
    if (const auto* negation = std::get_if<Negation>(&expression.node)) {
        const std::optional<bool> truth = truthOf(value(*negation->operand, row));
        return truth ? basic::Variant(!*truth) : basic::Variant(basic::Null{});
    }
    return value(std::get<Operation>(expression.node), row);
}

basic::Variant Evaluator::value(const Operation& operation, const RowView& row) {
    if (operation.kind == Operator::And || operation.kind == Operator::Or)
        return logical(operation, row);
    if (operation.kind == Operator::Concatenate) {
        std::string text;
        appendText(text, *operation.left, row);
        appendText(text, *operation.right, row);
        return text;
    }
    const basic::Variant left = value(*operation.left, row);
    return fromTruth(compared(operation.kind, compareValues(left, value(*operation.right, row))));
}

// What one side settles alone is settled whatever the other one is.
basic::Variant Evaluator::logical(const Operation& operation, const RowView& row) {
    const bool settling = operation.kind == Operator::Or;
    const std::optional<bool> left = truthOf(value(*operation.left, row));
    if (left == settling)
        return settling;
    const std::optional<bool> right = truthOf(value(*operation.right, row));
    if (right == settling)
        return settling;
    return left && right ? basic::Variant(!settling) : basic::Variant(basic::Null{});
}

void Evaluator::appendText(std::string& text, const Expression& expression, const RowView& row) {
    basic::Variant part = value(expression, row);
    if (const auto* truth = std::get_if<bool>(&part))
        part = std::int32_t{*truth ? -1 : 0}; // the engine's own number for it, other than the program's text
    if (const auto* whole = std::get_if<std::string>(&part))
        text.append(*whole);
    else if (!basic::isNull(part))
        text.append(basic::toText(part, basic::DateTimeFormat()));
}

} // namespace jet::sql
