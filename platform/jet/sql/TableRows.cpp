// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/TableRows.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/TablePages.h"
#include "platform/jet/UsageMap.h"
#include "platform/jet/sql/Binder.h"
#include "platform/jet/sql/FieldType.h"
#include "platform/jet/sql/KeyLookup.h"

#include <algorithm>

namespace jet::sql {
namespace {

constexpr int kFirstUnnamed = 1000; // the provider calls columns without a name Expr1000 and on

std::int32_t typeOf(const Expression& expression) {
    if (const auto* name = std::get_if<ColumnName>(&expression.node))
        return fieldType(*name->column);
    if (const auto* literal = std::get_if<Literal>(&expression.node))
        return fieldType(literal->value);
    const auto* operation = std::get_if<Operation>(&expression.node);
    const bool isText = operation != nullptr && operation->kind == Operator::Concatenate;
    return isText ? fieldtype::kText : fieldtype::kBoolean;
}

std::string nameOf(const SelectedExpression& item, std::size_t position) {
    if (!item.alias.empty())
        return item.alias;
    if (const auto* name = std::get_if<ColumnName>(&item.expression->node))
        return name->column->name;
    return "Expr" + std::to_string(kFirstUnnamed + position);
}

template <typename Visit>
void forEachColumn(const Expression& expression, const Visit& visit) {
    if (const auto* name = std::get_if<ColumnName>(&expression.node))
        visit(*name->column);
    else if (const auto* negation = std::get_if<Negation>(&expression.node))
        forEachColumn(*negation->operand, visit);
    else if (const auto* test = std::get_if<NullTest>(&expression.node))
        forEachColumn(*test->operand, visit);
    else if (const auto* operation = std::get_if<Operation>(&expression.node)) {
        forEachColumn(*operation->left, visit);
        forEachColumn(*operation->right, visit);
    }
}

} // namespace

TableRows::Access::Access(std::unique_ptr<StatementPages> heldPages, const TableDefinition& definition,
                          std::string_view tableName)
    : pages(std::move(heldPages)), scan(*pages, definition, tableName), decoder(*pages), evaluator(decoder),
      longValues(*pages) {}

TableRows::TableRows(std::shared_ptr<Select> select, TableDefinition definition)
    : RowSource({}), m_select(std::move(select)), m_definition(std::move(definition)) {
    bind();
}

void TableRows::bind() {
    const Binder binder(m_definition, m_select->table);
    if (m_select->condition) {
        binder.bindCondition(*m_select->condition);
        forEachColumn(*m_select->condition, [this](const Column& column) { countLongValue(column); });
    }
    for (OrderColumn& column : m_select->order) {
        binder.bind(column.name);
        countLongValue(*column.name.column);
    }
    for (SelectItem& item : m_select->items)
        if (auto* selected = std::get_if<SelectedExpression>(&item))
            binder.bind(*selected->expression);
    std::vector<ResultColumn> columns;
    for (const SelectItem& item : m_select->items)
        addItem(item, columns);
    setColumns(std::move(columns));
}

void TableRows::addItem(const SelectItem& item, std::vector<ResultColumn>& columns) {
    if (std::holds_alternative<AllColumns>(item)) {
        for (const Column& column : m_definition.columns) {
            columns.push_back({column.name, fieldType(column)});
            m_sources.push_back({&column, nullptr});
            need(column);
        }
    } else if (const auto* selected = std::get_if<SelectedExpression>(&item)) {
        columns.push_back({nameOf(*selected, columns.size()), typeOf(*selected->expression)});
        m_sources.push_back({nullptr, selected->expression.get()});
        forEachColumn(*selected->expression, [this](const Column& column) { need(column); });
    }
}

void TableRows::countLongValue(const Column& column) {
    m_longValuesToChoose += column.isLongValue() ? 1U : 0U;
}

void TableRows::need(const Column& column) {
    if (std::ranges::find(m_needed, &column) == m_needed.end())
        m_needed.push_back(&column);
}

// Long values lie on pages of their own: all of them are read along only when all rows are asked for.
std::vector<PageNumber> TableRows::pagesToRead(PageReader& reader) const {
    const bool hasLongValues =
        std::ranges::any_of(m_needed, [](const Column* column) { return column->isLongValue(); });
    if (hasLongValues && m_select->condition == nullptr)
        return tablePages(reader, m_definition, m_select->table);
    return UsageMap::read(reader, m_definition.ownedMap, m_select->table).pagesWithinFile();
}

void TableRows::read(PageReader& reader) {
    if (!readByIndex(reader))
        readAll(reader);
    m_access->pages->detach();
}

// An index saves reading the table, no more: whatever is wrong with it, the rows themselves tell. One that
// does not know a key is not believed either, since not every key that another program makes is known here.
bool TableRows::readByIndex(PageReader& reader) {
    if (m_select->condition == nullptr)
        return false;
    const IndexedText wanted = indexedText(m_definition, *m_select->condition);
    if (wanted.index == nullptr)
        return false;
    try {
        m_access.emplace(std::make_unique<StatementPages>(reader, std::vector<PageNumber>()), m_definition,
                         m_select->table);
        return takeRows(rowsByKey(*m_access->pages, m_definition, m_select->table, wanted));
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kProviderFailure)
            throw;
        return false;
    }
}

bool TableRows::takeRows(const std::vector<RowPointer>& candidates) {
    RowOrder order(m_select->order);
    m_rows.clear();
    for (const RowPointer& candidate : candidates) {
        if (!m_access->scan.moveTo(candidate))
            return false;
        takeRow(candidate, order);
    }
    order.apply(m_rows);
    return !m_rows.empty();
}

void TableRows::readAll(PageReader& reader) {
    m_rows.clear();
    m_access.emplace(std::make_unique<StatementPages>(reader, pagesToRead(reader)), m_definition,
                     m_select->table);
    RowOrder order(m_select->order);
    while (m_access->scan.next())
        takeRow(m_access->scan.position(), order);
    order.apply(m_rows);
}

// The row that the scan stands at, if it is one of those asked for.
void TableRows::takeRow(RowPointer where, RowOrder& order) {
    const RowView& row = m_access->scan.row();
    if (!m_select->condition || m_access->evaluator.holds(*m_select->condition, row)) {
        checkRow(row);
        order.add(m_access->decoder, row);
        m_rows.push_back(where);
    }
    refuseSharedLongValues(row);
}

// Decodes what is cheap and finds what is not.
void TableRows::checkRow(const RowView& row) {
    for (const Column* column : m_needed) {
        if (column->type == ColumnType::Text)
            row.field(*column);
        else if (!column->isLongValue())
            m_access->decoder.value(row, *column);
        else if (!row.isNull(*column))
            m_access->longValues.check(row.field(*column), row.place());
    }
}

// Every long value is one row's, so all of them together are no larger than the file. Rows that share one
// would make a small file as slow as a huge one.
void TableRows::refuseSharedLongValues(const RowView& row) const {
    const std::uint64_t held = std::uint64_t{m_access->pages->pageCount()} * format::page::kSize;
    if (m_access->longValues.bytesRead() > held ||
        m_access->decoder.longValueBytesRead() > m_longValuesToChoose * held)
        row.place().fail("the long values of several rows lie in the same place");
}

basic::Variant TableRows::value(std::size_t row, std::size_t column) {
    goTo(row);
    const Source& source = m_sources[column];
    const RowView& view = m_access->scan.row();
    return source.column != nullptr ? m_access->decoder.value(view, *source.column)
                                    : m_access->evaluator.value(*source.expression, view);
}

void TableRows::goTo(std::size_t row) {
    if (m_currentRow == row)
        return;
    m_currentRow.reset();
    m_access->scan.moveTo(m_rows[row]);
    m_currentRow = row;
}

} // namespace jet::sql
