// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SystemTables.h"

#include "platform/jet/TableDefinitionBuilder.h"

namespace jet::systemTables {

using namespace format;

namespace {

constexpr std::uint16_t kLongest = 510; // bytes of a text or binary column
constexpr std::uint8_t kPlainIndexFlags = realIndex::kAlwaysSet;
constexpr std::uint8_t kUniqueIndexFlags = realIndex::kAlwaysSet | realIndex::kUnique;

struct ColumnRow {
    const char* name;
    ColumnType type;
    std::uint16_t number;
    std::uint16_t length;
    std::uint8_t flags = column::kSystem | column::kNullable;
};

struct IndexRow {
    const char* name;
    std::vector<std::uint16_t> columns;
    std::uint8_t flags;
    std::uint8_t type;
    std::uint32_t number; // its place among the stored indexes; the list itself is ordered by name
};

TableDefinition define(std::initializer_list<ColumnRow> columns, std::initializer_list<IndexRow> indexes) {
    TableDefinition table;
    table.tableType = definition::kSystemTable;
    for (const ColumnRow& row : columns) {
        Column column;
        column.name = row.name;
        column.type = row.type;
        column.number = row.number;
        column.length = row.length;
        column.sortOrder = header::kGeneralSortOrder;
        column.flags = row.flags;
        table.columns.push_back(std::move(column));
    }
    table.realIndexes.resize(indexes.size());
    for (const IndexRow& row : indexes) {
        RealIndex& index = table.realIndexes.at(row.number);
        for (const std::uint16_t number : row.columns)
            index.columns.push_back({number, true});
        index.flags = row.flags;
        LogicalIndex logical;
        logical.name = row.name;
        logical.number = row.number;
        logical.realIndex = row.number;
        logical.type = row.type;
        table.logicalIndexes.push_back(std::move(logical));
    }
    layOutColumns(table);
    return table;
}

constexpr std::uint8_t kFixedColumn = column::kSystem | column::kNullable | column::kFixed;
constexpr std::uint8_t kSecurityColumn = column::kSystem | column::kNullable | column::kSecurity;

TableDefinition objects() {
    return define({{"Connect", ColumnType::Memo, 9, 0},
                   {"Database", ColumnType::Memo, 8, 0},
                   {"DateCreate", ColumnType::Date, 4, 8, kFixedColumn},
                   {"DateUpdate", ColumnType::Date, 5, 8, kFixedColumn},
                   {"Flags", ColumnType::Long, 7, 4, kFixedColumn},
                   {"ForeignName", ColumnType::Text, 10, kLongest},
                   {"Id", ColumnType::Long, 0, 4, kFixedColumn},
                   {"Lv", ColumnType::Ole, 13, 0},
                   {"LvExtra", ColumnType::Ole, 16, 0},
                   {"LvModule", ColumnType::Ole, 15, 0},
                   {"LvProp", ColumnType::Ole, 14, 0},
                   {"Name", ColumnType::Text, 2, kLongest},
                   {"Owner", ColumnType::Binary, 6, kLongest, kSecurityColumn},
                   {"ParentId", ColumnType::Long, 1, 4, kFixedColumn},
                   {"RmtInfoLong", ColumnType::Ole, 12, 0},
                   {"RmtInfoShort", ColumnType::Binary, 11, kLongest},
                   {"Type", ColumnType::Integer, 3, 2, kFixedColumn}},
                  {{"Id", {0}, kUniqueIndexFlags, logicalIndex::kPrimaryKey, 1},
                   {"ParentIdName", {1, 2}, kUniqueIndexFlags, logicalIndex::kPlain, 0}});
}

TableDefinition permissions() {
    return define({{"ACM", ColumnType::Long, 2, 4, kFixedColumn},
                   {"FInheritable", ColumnType::Boolean, 3, 1, kFixedColumn},
                   {"ObjectId", ColumnType::Long, 0, 4, kFixedColumn},
                   {"SID", ColumnType::Binary, 1, kLongest, kSecurityColumn}},
                  {{"ObjectId", {0}, kPlainIndexFlags | realIndex::kRequired, logicalIndex::kPlain, 0}});
}

TableDefinition queries() {
    return define({{"Attribute", ColumnType::Byte, 1, 1, kFixedColumn},
                   {"Expression", ColumnType::Memo, 5, 0},
                   {"Flag", ColumnType::Integer, 6, 2, kFixedColumn},
                   {"LvExtra", ColumnType::Long, 7, 4, kFixedColumn},
                   {"Name1", ColumnType::Text, 3, kLongest},
                   {"Name2", ColumnType::Text, 4, kLongest},
                   {"ObjectId", ColumnType::Long, 0, 4, kFixedColumn},
                   {"Order", ColumnType::Binary, 2, kLongest}},
                  {{"ObjectIdAttribute", {0, 1, 2}, kUniqueIndexFlags, logicalIndex::kPrimaryKey, 0}});
}

TableDefinition relationships() {
    constexpr std::uint8_t kFlags = kPlainIndexFlags | realIndex::kIgnoreNulls;
    return define({{"ccolumn", ColumnType::Long, 2, 4, kFixedColumn},
                   {"grbit", ColumnType::Long, 1, 4, kFixedColumn},
                   {"icolumn", ColumnType::Long, 3, 4, kFixedColumn},
                   {"szColumn", ColumnType::Text, 5, kLongest},
                   {"szObject", ColumnType::Text, 4, kLongest},
                   {"szReferencedColumn", ColumnType::Text, 7, kLongest},
                   {"szReferencedObject", ColumnType::Text, 6, kLongest},
                   {"szRelationship", ColumnType::Text, 0, kLongest}},
                  {{"szObject", {4}, kFlags, logicalIndex::kPlain, 1},
                   {"szReferencedObject", {6}, kFlags, logicalIndex::kPlain, 2},
                   {"szRelationship", {0}, kFlags, logicalIndex::kPlain, 0}});
}

} // namespace

std::vector<TableDefinition> definitions() {
    std::vector<TableDefinition> tables;
    tables.push_back(objects());
    tables.push_back(permissions());
    tables.push_back(queries());
    tables.push_back(relationships());
    return tables;
}

} // namespace jet::systemTables
