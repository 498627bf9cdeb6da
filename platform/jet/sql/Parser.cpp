// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/Parser.h"

#include <optional>
#include <utility>

namespace jet::sql {

Statement Parser::parse() {
    Statement result = statement();
    m_tokens.acceptSymbol(";");
    if (m_tokens.peek().kind != TokenKind::End)
        m_tokens.fail("the end of the statement is expected");
    return result;
}

Statement Parser::statement() {
    if (m_tokens.accept("SELECT"))
        return select();
    if (m_tokens.accept("INSERT"))
        return insert();
    if (m_tokens.accept("DELETE"))
        return deletion();
    m_tokens.fail("SELECT, INSERT or DELETE is expected");
}

// One or more elements between commas.
template <typename Element>
auto Parser::list(Element&& element) {
    std::vector<decltype(element())> elements;
    do {
        if (elements.size() == kMaximumItems)
            m_tokens.fail("too many elements in a list");
        elements.push_back(element());
    } while (m_tokens.acceptSymbol(","));
    return elements;
}

Select Parser::select() {
    Select result;
    result.items = list([this] { return item(); });
    m_tokens.expect("FROM");
    result.table = m_tokens.expectName();
    result.condition = condition();
    result.order = order();
    return result;
}

SelectItem Parser::item() {
    if (m_tokens.acceptSymbol("*"))
        return AllColumns{};
    if (!m_tokens.isKeyword("COUNT"))
        return SelectedExpression{m_expressions.parse(), alias()};
    m_tokens.take();
    m_tokens.expectSymbol("(");
    m_tokens.expectSymbol("*");
    m_tokens.expectSymbol(")");
    return CountOfRows{alias()};
}

std::string Parser::alias() {
    return m_tokens.accept("AS") ? m_tokens.expectName() : std::string();
}

ExpressionPointer Parser::condition() {
    return m_tokens.accept("WHERE") ? m_expressions.parse() : nullptr;
}

std::vector<OrderColumn> Parser::order() {
    if (!m_tokens.accept("ORDER"))
        return {};
    m_tokens.expect("BY");
    return list([this] { return orderColumn(); });
}

OrderColumn Parser::orderColumn() {
    OrderColumn result;
    result.name.name = m_tokens.expectName();
    if (m_tokens.acceptSymbol("."))
        result.name.table = std::exchange(result.name.name, m_tokens.expectName());
    if (m_tokens.accept("DESC"))
        result.isAscending = false;
    else
        m_tokens.accept("ASC");
    return result;
}

Insert Parser::insert() {
    Insert result;
    m_tokens.expect("INTO");
    result.table = m_tokens.expectName();
    m_tokens.expectSymbol("(");
    result.columns = list([this] { return m_tokens.expectName(); });
    m_tokens.expectSymbol(")");
    m_tokens.expect("VALUES");
    m_tokens.expectSymbol("(");
    result.values = list([this] { return value(); });
    if (result.values.size() != result.columns.size())
        m_tokens.fail("as many values as columns are expected");
    m_tokens.expectSymbol(")");
    return result;
}

basic::Variant Parser::value() {
    std::optional<basic::Variant> literal = m_expressions.literal();
    if (!literal)
        m_tokens.fail("a value is expected");
    return std::move(*literal);
}

Delete Parser::deletion() {
    Delete result;
    m_tokens.acceptSymbol("*");
    m_tokens.expect("FROM");
    result.table = m_tokens.expectName();
    result.condition = condition();
    return result;
}

} // namespace jet::sql
