// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/CatalogEntry.h"

#include "platform/jet/TextCodec.h"

namespace jet {
namespace {

namespace layout = format::catalog;

const Column& required(const TableDefinition& catalog, std::string_view name, ColumnType type,
                       const Place& place) {
    const Column* column = catalog.findColumn(name);
    if (column == nullptr || column->type != type)
        place.fail("the catalog has no column " + std::string(name) + " of the right type");
    return *column;
}

// 0 for a null.
std::uint32_t number(const RowView& row, const Column& column) {
    if (row.isNull(column))
        return 0;
    const ByteView field(row.field(column), row.place());
    return column.type == ColumnType::Integer ? field.u16(0) : field.u32(0);
}

} // namespace

bool CatalogEntry::isTable() const noexcept {
    return type == layout::kTypeTable && parent == layout::kTablesContainer;
}

bool CatalogEntry::isLink() const noexcept {
    return (type == layout::kTypeOdbcLink || type == layout::kTypeLinkedTable) &&
           parent == layout::kTablesContainer;
}

CatalogColumns CatalogColumns::find(const TableDefinition& catalog, const Place& place) {
    return {required(catalog, "Id", ColumnType::Long, place),
            required(catalog, "ParentId", ColumnType::Long, place),
            required(catalog, "Name", ColumnType::Text, place),
            required(catalog, "Type", ColumnType::Integer, place),
            required(catalog, "Flags", ColumnType::Long, place)};
}

CatalogEntry CatalogColumns::entry(const RowView& row, RowPointer where) const {
    CatalogEntry result;
    result.name = decodeText(row.field(name));
    result.id = static_cast<std::int32_t>(number(row, id));
    result.parent = static_cast<std::int32_t>(number(row, parent));
    result.type = static_cast<std::int16_t>(number(row, type));
    result.flags = number(row, flags);
    result.row = where;
    return result;
}

} // namespace jet
