// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/ExpressionParser.h"

#include <algorithm>
#include <array>
#include <utility>

namespace jet::sql {
namespace {

constexpr std::array<std::pair<std::string_view, Operator>, 6> kComparisons{{
    {"=", Operator::Equal},
    {"<>", Operator::NotEqual},
    {"<", Operator::Less},
    {">", Operator::Greater},
    {"<=", Operator::LessOrEqual},
    {">=", Operator::GreaterOrEqual},
}};

// Counts one level of nesting while it lives.
class Nesting {
public:
    Nesting(int& level, const TokenStream& tokens) : m_level(level) {
        if (m_level >= ExpressionParser::kMaximumDepth)
            tokens.fail("the expression is nested too deeply");
        ++m_level;
    }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;
    ~Nesting() { --m_level; }

private:
    int& m_level;
};

} // namespace

template <typename Node>
ExpressionPointer ExpressionParser::made(Node node, int depth) {
    if (depth > kMaximumDepth)
        m_tokens.fail("the expression is too complex");
    auto expression = std::make_unique<Expression>();
    expression->node = std::move(node);
    expression->depth = depth;
    return expression;
}

ExpressionPointer ExpressionParser::operation(Operator kind, ExpressionPointer left,
                                              ExpressionPointer right) {
    const int depth = std::max(left->depth, right->depth) + 1;
    return made(Operation{kind, std::move(left), std::move(right)}, depth);
}

ExpressionPointer ExpressionParser::disjunction() {
    ExpressionPointer left = conjunction();
    while (m_tokens.accept("OR"))
        left = operation(Operator::Or, std::move(left), conjunction());
    return left;
}

ExpressionPointer ExpressionParser::conjunction() {
    ExpressionPointer left = negation();
    while (m_tokens.accept("AND"))
        left = operation(Operator::And, std::move(left), negation());
    return left;
}

ExpressionPointer ExpressionParser::negation() {
    const Nesting nesting(m_nesting, m_tokens);
    if (!m_tokens.accept("NOT"))
        return comparison();
    ExpressionPointer operand = negation();
    const int depth = operand->depth + 1;
    return made(Negation{std::move(operand)}, depth);
}

ExpressionPointer ExpressionParser::comparison() {
    ExpressionPointer left = concatenation();
    if (m_tokens.accept("IS")) {
        const bool isNegated = m_tokens.accept("NOT");
        m_tokens.expect("NULL");
        const int depth = left->depth + 1;
        return made(NullTest{std::move(left), isNegated}, depth);
    }
    if (const std::optional<Operator> kind = comparisonOperator())
        return operation(*kind, std::move(left), concatenation());
    return left;
}

std::optional<Operator> ExpressionParser::comparisonOperator() {
    for (const auto& [symbol, kind] : kComparisons)
        if (m_tokens.acceptSymbol(symbol))
            return kind;
    return std::nullopt;
}

ExpressionPointer ExpressionParser::concatenation() {
    ExpressionPointer left = primary();
    while (m_tokens.acceptSymbol("&"))
        left = operation(Operator::Concatenate, std::move(left), primary());
    return left;
}

ExpressionPointer ExpressionParser::primary() {
    const Nesting nesting(m_nesting, m_tokens);
    if (m_tokens.acceptSymbol("(")) {
        ExpressionPointer inner = disjunction();
        m_tokens.expectSymbol(")");
        return inner;
    }
    if (std::optional<basic::Variant> value = literal())
        return made(Literal{std::move(*value)}, 1);
    return columnName();
}

ExpressionPointer ExpressionParser::columnName() {
    if (!m_tokens.isName())
        m_tokens.fail("an expression is expected");
    std::string name = m_tokens.expectName();
    if (m_tokens.isSymbol("("))
        m_tokens.fail("functions are not known");
    if (!m_tokens.acceptSymbol("."))
        return made(ColumnName{{}, std::move(name), nullptr}, 1);
    return made(ColumnName{std::move(name), m_tokens.expectName(), nullptr}, 1);
}

std::optional<basic::Variant> ExpressionParser::literal() {
    if (m_tokens.peek().kind == TokenKind::Value)
        return m_tokens.take().value;
    if (m_tokens.accept("TRUE"))
        return true;
    if (m_tokens.accept("FALSE"))
        return false;
    if (m_tokens.accept("NULL"))
        return basic::Null{};
    if (m_tokens.acceptSymbol("-"))
        return negativeNumber();
    return std::nullopt;
}

basic::Variant ExpressionParser::negativeNumber() {
    const basic::Variant& value = m_tokens.peek().value;
    const bool isValue = m_tokens.peek().kind == TokenKind::Value;
    if (isValue && std::holds_alternative<std::int32_t>(value))
        return -std::get<std::int32_t>(m_tokens.take().value);
    if (isValue && std::holds_alternative<double>(value))
        return -std::get<double>(m_tokens.take().value);
    m_tokens.fail("a number is expected");
}

} // namespace jet::sql
