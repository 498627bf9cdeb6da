// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/KeyLookup.h"

#include "platform/jet/IndexKey.h"
#include "platform/jet/IndexSearch.h"

#include <algorithm>
#include <utility>

namespace jet::sql {

IndexedText indexedText(const TableDefinition& table, const Expression& condition) {
    const auto* comparison = std::get_if<Operation>(&condition.node);
    if (comparison == nullptr || comparison->kind != Operator::Equal)
        return {};
    const Expression* left = comparison->left.get();
    const Expression* right = comparison->right.get();
    if (std::holds_alternative<Literal>(left->node))
        std::swap(left, right);
    const auto* name = std::get_if<ColumnName>(&left->node);
    const auto* literal = std::get_if<Literal>(&right->node);
    if (name == nullptr || literal == nullptr || name->column->type != ColumnType::Text ||
        !std::holds_alternative<std::string>(literal->value))
        return {};
    const auto index = std::ranges::find_if(table.realIndexes, [&](const RealIndex& candidate) {
        return !candidate.columns.empty() && candidate.columns.front().number == name->column->number;
    });
    if (index == table.realIndexes.end())
        return {};
    return {&*index, name->column, &literal->value};
}

std::vector<RowPointer> rowsByKey(PageSource& source, const TableDefinition& table,
                                  std::string_view tableName, const IndexedText& wanted) {
    KeyBytes key;
    appendKeyPart(key, *wanted.value, *wanted.column, wanted.index->columns.front().ascending);
    std::vector<RowPointer> rows = IndexSearch(source, table, tableName).find(*wanted.index, key);
    std::ranges::sort(rows);
    return rows;
}

} // namespace jet::sql
