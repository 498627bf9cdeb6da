// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableDefinitionReader.h"

#include "platform/jet/TableHead.h"
#include "platform/jet/TextCodec.h"

#include <algorithm>

namespace jet {
namespace {

namespace layout = format::definition;

Column parseColumn(const ByteView& block) {
    namespace part = format::column;
    Column column;
    column.type = static_cast<ColumnType>(block.u8(part::kType));
    column.number = block.u16(part::kNumber);
    column.variableIndex = block.u16(part::kVariableIndex);
    column.position = block.u16(part::kPosition);
    column.flags = block.u8(part::kFlags);
    column.extendedFlags = block.u8(part::kExtendedFlags);
    column.fixedOffset = block.u16(part::kFixedOffset);
    column.length = block.u16(part::kLength);
    if (column.type == ColumnType::Numeric) {
        column.precision = block.u8(part::kPrecision);
        column.scale = block.u8(part::kScale);
    } else {
        column.sortOrder = block.u16(part::kSortOrder);
        column.sortVersion = block.u8(part::kSortVersion);
    }
    return column;
}

RealIndex parseRealIndex(const ByteView& block) {
    namespace part = format::realIndex;
    RealIndex index;
    for (std::size_t i = 0; i < part::kMaxColumns; ++i) {
        const std::size_t at = part::kColumns + i * part::kColumnSize;
        const std::uint16_t number = block.u16(at);
        if (number != part::kNoColumn)
            index.columns.push_back({number, block.u8(at + 2) == part::kAscending});
    }
    index.usageMap = RowPointer::fromStored(block.u32(part::kUsageMap));
    index.root = block.u32(part::kRoot);
    index.flags = block.u8(part::kFlags);
    return index;
}

LogicalIndex parseLogicalIndex(const ByteView& block) {
    namespace part = format::logicalIndex;
    LogicalIndex index;
    index.number = block.u32(part::kNumber);
    index.realIndex = block.u32(part::kRealIndex);
    index.role = block.u8(part::kRole);
    index.otherIndex = static_cast<std::int32_t>(block.u32(part::kOtherIndex));
    index.otherTable = block.u32(part::kOtherTable);
    index.type = block.u8(part::kType);
    return index;
}

} // namespace

TableDefinition TableDefinitionReader::read(PageNumber page, std::string_view table) {
    m_table = {};
    readChain(page, table);
    const ByteView view(m_table.bytes, {m_source.name(), table, page});
    readFixedPart(view);
    readColumns(view);
    readRealIndexes(view);
    readLogicalIndexes(view);
    readLongValueMaps(view);
    std::ranges::sort(m_table.columns, {}, &Column::number);
    return std::move(m_table);
}

void TableDefinitionReader::readChain(PageNumber page, std::string_view table) {
    PageBuffer buffer;
    for (PageNumber next = page; next != 0;) {
        const Place place{m_source.name(), table, next};
        if (std::ranges::find(m_table.pages, next) != m_table.pages.end())
            place.fail("the pages of the table definition form a loop");
        if (m_table.pages.size() == layout::kMaxPages)
            place.fail("the table definition has too many pages");
        const PageBytes bytes = m_source.page(next, buffer);
        const ByteView view(bytes, place);
        if (view.u8(format::page::kType) != format::page::kDefinition)
            view.fail("a page of a table definition is expected, the type is " +
                      std::to_string(view.u8(format::page::kType)));
        const std::size_t skipped = m_table.pages.empty() ? 0 : layout::kContinuationStart;
        const std::span<const std::byte> kept = bytes.subspan(skipped);
        m_table.bytes.insert(m_table.bytes.end(), kept.begin(), kept.end());
        m_table.pages.push_back(next);
        next = view.u32(layout::kNextPage);
    }
}

void TableDefinitionReader::readFixedPart(const ByteView& view) {
    if (m_table.pages.empty())
        view.fail("a table definition cannot lie on page 0");
    const PageBytes first(m_table.bytes.data(), format::page::kSize);
    const TableHead head = TableHead::parse(first, view.place());
    if (head.length > view.size())
        view.fail("the table definition ends before its stated length of " + std::to_string(head.length));
    m_table.tableType = head.tableType;
    m_table.rowCount = head.rowCount;
    m_table.lastAutonumber = head.lastAutonumber;
    m_table.ownedMap = head.ownedMap;
    m_table.freeMap = head.freeMap;
    m_table.maxColumnCount = view.u16(layout::kMaxColumnCount);
    m_table.variableColumnCount = view.u16(layout::kVariableColumns);
    m_columnCount = view.u16(layout::kColumnCount);
    m_logicalIndexCount = view.u32(layout::kLogicalIndexCount);
    m_realIndexCount = view.u32(layout::kRealIndexCount);
    m_at = layout::kFixedSize + m_realIndexCount * layout::kStatisticsSize;
}

void TableDefinitionReader::readColumns(const ByteView& view) {
    if (m_columnCount > layout::kMaxColumns)
        view.fail("the table definition has " + std::to_string(m_columnCount) + " columns");
    for (std::size_t i = 0; i < m_columnCount; ++i, m_at += format::column::kSize)
        m_table.columns.push_back(parseColumn(view.view(m_at, format::column::kSize)));
    for (Column& column : m_table.columns)
        column.name = readName(view);
}

void TableDefinitionReader::readRealIndexes(const ByteView& view) {
    for (std::size_t i = 0; i < m_realIndexCount; ++i, m_at += format::realIndex::kSize) {
        RealIndex index = parseRealIndex(view.view(m_at, format::realIndex::kSize));
        index.definitionOffset = m_at;
        index.statisticsOffset = layout::kFixedSize + i * layout::kStatisticsSize;
        index.uniqueEntries = view.u32(index.statisticsOffset + layout::kUniqueEntries);
        m_table.realIndexes.push_back(std::move(index));
    }
}

void TableDefinitionReader::readLogicalIndexes(const ByteView& view) {
    for (std::size_t i = 0; i < m_logicalIndexCount; ++i, m_at += format::logicalIndex::kSize) {
        m_table.logicalIndexes.push_back(parseLogicalIndex(view.view(m_at, format::logicalIndex::kSize)));
        if (m_table.logicalIndexes.back().realIndex >= m_realIndexCount)
            view.fail("logical index " + std::to_string(i) + " refers to a real index that is not there");
    }
    for (LogicalIndex& index : m_table.logicalIndexes)
        index.name = readName(view);
}

void TableDefinitionReader::readLongValueMaps(const ByteView& view) {
    namespace part = format::longValueMaps;
    while (view.u16(m_at) != part::kEnd) {
        const ByteView block = view.view(m_at, part::kSize);
        m_table.longValueMaps.push_back({block.u16(part::kColumn),
                                         RowPointer::fromStored(block.u32(part::kOwned)),
                                         RowPointer::fromStored(block.u32(part::kFree)), m_at});
        m_at += part::kSize;
    }
}

std::string TableDefinitionReader::readName(const ByteView& view) {
    const std::size_t length = view.u16(m_at);
    const std::span<const std::byte> units = view.slice(m_at + layout::kNameLengthSize, length);
    m_at += layout::kNameLengthSize + length;
    return decodePlainText(units);
}

} // namespace jet
