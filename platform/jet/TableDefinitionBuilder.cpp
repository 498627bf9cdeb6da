// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableDefinitionBuilder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/NameComparison.h"
#include "platform/jet/TextEncoder.h"

#include <algorithm>

namespace jet {

using namespace format;

namespace {

constexpr std::uint16_t kMaxTextLength = 255;
constexpr std::uint16_t kMaxBinaryLength = 510;
constexpr std::uint8_t kMaxPrecision = 28;

[[noreturn]] void fail(const std::string& problem) {
    throw basic::RuntimeError(basic::kProviderSyntax, "The table cannot be created: " + problem);
}

void check(bool condition, const std::string& problem) {
    if (!condition)
        fail(problem);
}

void checkName(const std::string& name) {
    const std::size_t units = toStoredUnits(name).size();
    check(units > 0 && units <= definition::kMaxNameUnits,
          "\"" + name + "\" is no name of 1 to 64 characters");
}

std::uint16_t lengthOf(const ColumnSpec& spec) {
    switch (spec.type) {
    case ColumnType::Boolean:
    case ColumnType::Byte:
        return 1;
    case ColumnType::Integer:
        return 2;
    case ColumnType::Long:
    case ColumnType::Single:
        return 4;
    case ColumnType::Currency:
    case ColumnType::Double:
    case ColumnType::Date:
        return 8;
    case ColumnType::Guid:
        return 16;
    case ColumnType::Numeric:
        check(spec.precision > 0 && spec.precision <= kMaxPrecision && spec.scale <= spec.precision,
              "column " + spec.name + " has no precision of 1 to 28 digits");
        return numeric::kSize;
    case ColumnType::Text:
        check(spec.size > 0 && spec.size <= kMaxTextLength, "column " + spec.name + " is not 1 to 255 long");
        return static_cast<std::uint16_t>(2 * spec.size);
    case ColumnType::Binary:
        check(spec.size > 0 && spec.size <= kMaxBinaryLength,
              "column " + spec.name + " is not 1 to 510 long");
        return spec.size;
    case ColumnType::Memo:
    case ColumnType::Ole:
        return 0;
    }
    fail("column " + spec.name + " is of an unknown type");
}

bool isStoredFixed(ColumnType type) {
    return type != ColumnType::Text && type != ColumnType::Memo && type != ColumnType::Binary &&
           type != ColumnType::Ole;
}

Column defineColumn(const ColumnSpec& spec, std::size_t number) {
    checkName(spec.name);
    Column column;
    column.name = spec.name;
    column.type = spec.type;
    column.number = static_cast<std::uint16_t>(number);
    column.position = column.number;
    column.length = lengthOf(spec);
    column.sortOrder = header::kGeneralSortOrder;
    column.flags = column::kNullable;
    if (isStoredFixed(spec.type))
        column.flags |= column::kFixed;
    if (spec.autonumber)
        column.flags |= column::kAutonumber;
    if (spec.compressed && (spec.type == ColumnType::Text || spec.type == ColumnType::Memo))
        column.extendedFlags = column::kCompressible;
    if (spec.type == ColumnType::Numeric) {
        column.precision = spec.precision;
        column.scale = spec.scale;
    }
    check(!spec.autonumber || spec.type == ColumnType::Long,
          "column " + spec.name + " cannot be an autonumber");
    return column;
}

void addIndex(TableDefinition& table, const IndexSpec& spec) {
    checkName(spec.name);
    check(!spec.columns.empty() && spec.columns.size() <= realIndex::kMaxColumns,
          "index " + spec.name + " has no 1 to 10 columns");
    RealIndex index;
    for (const IndexColumnSpec& part : spec.columns) {
        const Column* column = table.findColumn(part.column);
        check(column != nullptr, "index " + spec.name + " names no column of the table");
        check(!column->isLongValue(), "column " + part.column + " is of a type without an index");
        index.columns.push_back({column->number, part.ascending});
    }
    index.flags = realIndex::kAlwaysSet;
    if (spec.primaryKey)
        index.flags |= realIndex::kUnique | realIndex::kRequired;
    if (spec.unique)
        index.flags |= realIndex::kUnique;
    if (spec.ignoresNulls && !spec.primaryKey)
        index.flags |= realIndex::kIgnoreNulls;
    LogicalIndex logical;
    logical.name = spec.name;
    logical.number = static_cast<std::uint32_t>(table.logicalIndexes.size());
    logical.realIndex = logical.number;
    logical.type = spec.primaryKey ? logicalIndex::kPrimaryKey : logicalIndex::kPlain;
    table.realIndexes.push_back(std::move(index));
    table.logicalIndexes.push_back(std::move(logical));
}

void checkNamesDiffer(const TableDefinition& table) {
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        check(table.findColumn(table.columns[i].name) == &table.columns[i],
              "there are two columns " + table.columns[i].name);
    for (std::size_t i = 0; i < table.logicalIndexes.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            check(!equalNames(table.logicalIndexes[i].name, table.logicalIndexes[j].name),
                  "there are two indexes " + table.logicalIndexes[i].name);
}

} // namespace

TableDefinition defineTable(const TableSpec& spec) {
    checkName(spec.name);
    check(!spec.columns.empty() && spec.columns.size() <= definition::kMaxColumns,
          "it has no 1 to 255 columns");
    check(spec.indexes.size() <= definition::kMaxIndexes, "it has more than 32 indexes");
    check(std::ranges::count_if(spec.columns, &ColumnSpec::autonumber) <= 1, "it has two autonumber columns");
    check(std::ranges::count_if(spec.indexes, &IndexSpec::primaryKey) <= 1, "it has two primary keys");
    TableDefinition table;
    table.tableType = definition::kUserTable;
    for (std::size_t i = 0; i < spec.columns.size(); ++i)
        table.columns.push_back(defineColumn(spec.columns[i], i));
    for (const IndexSpec& index : spec.indexes)
        addIndex(table, index);
    checkNamesDiffer(table);
    layOutColumns(table);
    return table;
}

void layOutColumns(TableDefinition& table) {
    std::vector<Column*> byNumber;
    for (Column& column : table.columns)
        byNumber.push_back(&column);
    std::ranges::sort(byNumber, {}, &Column::number);
    std::uint16_t fixedSize = 0;
    for (Column* column : byNumber) {
        column->variableIndex = table.variableColumnCount;
        if (!column->isFixed()) {
            ++table.variableColumnCount;
        } else if (column->type != ColumnType::Boolean) {
            column->fixedOffset = fixedSize;
            fixedSize = static_cast<std::uint16_t>(fixedSize + column->length);
        }
    }
    for (const Column& column : table.columns)
        if (column.isLongValue())
            table.longValueMaps.push_back({column.number, {}, {}, 0});
    table.maxColumnCount = static_cast<std::uint16_t>(table.columns.size());
}

} // namespace jet
