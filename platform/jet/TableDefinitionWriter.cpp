// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableDefinitionWriter.h"

#include "platform/jet/ByteEditor.h"
#include "platform/jet/TextEncoder.h"

#include <algorithm>

namespace jet {

using namespace format;

namespace {

constexpr std::size_t kContinuationSize = page::kSize - definition::kContinuationStart;

Bytes fixedPart(const TableDefinition& table) {
    Bytes bytes(definition::kFixedSize);
    ByteEditor part(bytes);
    part.put8(page::kType, page::kDefinition);
    part.put8(page::kMark, page::kMarkValue);
    part.put32(definition::kMarker, definition::kMarkerValue);
    part.put32(definition::kRowCount, table.rowCount);
    part.put32(definition::kLastAutonumber, table.lastAutonumber);
    part.put8(definition::kAutonumberStep, 1);
    part.put8(definition::kTableType, table.tableType);
    part.put16(definition::kMaxColumnCount, table.maxColumnCount);
    part.put16(definition::kVariableColumns, table.variableColumnCount);
    part.put16(definition::kColumnCount, static_cast<std::uint16_t>(table.columns.size()));
    part.put32(definition::kLogicalIndexCount, static_cast<std::uint32_t>(table.logicalIndexes.size()));
    part.put32(definition::kRealIndexCount, static_cast<std::uint32_t>(table.realIndexes.size()));
    part.put32(definition::kOwnedMap, table.ownedMap.stored());
    part.put32(definition::kFreeMap, table.freeMap.stored());
    return bytes;
}

Bytes columnPart(const Column& column) {
    Bytes bytes(column::kSize);
    ByteEditor part(bytes);
    part.put8(column::kType, static_cast<std::uint8_t>(column.type));
    part.put32(column::kMarker, definition::kMarkerValue);
    part.put16(column::kNumber, column.number);
    part.put16(column::kVariableIndex, column.variableIndex);
    part.put16(column::kPosition, column.position);
    if (column.type == ColumnType::Numeric) {
        part.put8(column::kPrecision, column.precision);
        part.put8(column::kScale, column.scale);
    } else {
        part.put16(column::kSortOrder, column.sortOrder);
    }
    part.put8(column::kFlags, column.flags);
    part.put8(column::kExtendedFlags, column.extendedFlags);
    part.put16(column::kFixedOffset, column.fixedOffset);
    part.put16(column::kLength, column.length);
    return bytes;
}

Bytes realIndexPart(const RealIndex& index) {
    Bytes bytes(realIndex::kSize);
    ByteEditor part(bytes);
    part.put32(realIndex::kMarker, realIndex::kMarkerValue);
    for (std::size_t i = 0; i < realIndex::kMaxColumns; ++i) {
        const std::size_t at = realIndex::kColumns + realIndex::kColumnSize * i;
        const bool isUsed = i < index.columns.size();
        part.put16(at, isUsed ? index.columns[i].number : realIndex::kNoColumn);
        part.put8(at + 2, isUsed && index.columns[i].ascending ? realIndex::kAscending : 0);
    }
    part.put32(realIndex::kUsageMap, index.usageMap.stored());
    part.put32(realIndex::kRoot, index.root);
    part.put8(realIndex::kFlags, index.flags);
    return bytes;
}

Bytes logicalIndexPart(const LogicalIndex& index) {
    Bytes bytes(logicalIndex::kSize);
    ByteEditor part(bytes);
    part.put32(logicalIndex::kMarker, definition::kMarkerValue);
    part.put32(logicalIndex::kNumber, index.number);
    part.put32(logicalIndex::kRealIndex, index.realIndex);
    part.put8(logicalIndex::kRole, index.role);
    part.put32(logicalIndex::kOtherIndex, static_cast<std::uint32_t>(index.otherIndex));
    part.put32(logicalIndex::kOtherTable, index.otherTable);
    part.put8(logicalIndex::kCascadeUpdate, logicalIndex::kNoCascade);
    part.put8(logicalIndex::kCascadeDelete, logicalIndex::kNoCascade);
    part.put8(logicalIndex::kType, index.type);
    return bytes;
}

void addName(ByteBuilder& builder, const std::string& name) {
    const Bytes units = encodeUtf16(toStoredUnits(name));
    builder.add16(static_cast<std::uint16_t>(units.size()));
    builder.addBytes(units);
}

void addIndexes(ByteBuilder& builder, const TableDefinition& table) {
    for (const RealIndex& index : table.realIndexes)
        builder.addBytes(realIndexPart(index));
    for (const LogicalIndex& index : table.logicalIndexes)
        builder.addBytes(logicalIndexPart(index));
    for (const LogicalIndex& index : table.logicalIndexes)
        addName(builder, index.name);
}

void addLongValueMaps(ByteBuilder& builder, const TableDefinition& table) {
    for (const LongValueMaps& maps : table.longValueMaps) {
        builder.add16(maps.column);
        builder.add32(maps.owned.stored());
        builder.add32(maps.free.stored());
    }
    builder.add16(longValueMaps::kEnd);
}

// The room a page states: its header does not count as taken, nor as free.
std::uint16_t statedFreeBytes(std::size_t used) {
    const std::size_t taken = used + definition::kContinuationStart;
    return static_cast<std::uint16_t>(taken < page::kSize ? page::kSize - taken : 0);
}

} // namespace

Bytes encodeDefinition(const TableDefinition& table) {
    ByteBuilder builder;
    builder.addBytes(fixedPart(table));
    for (const RealIndex& index : table.realIndexes) {
        builder.add32(0);
        builder.add32(index.uniqueEntries);
        builder.add32(0);
    }
    for (const Column& column : table.columns)
        builder.addBytes(columnPart(column));
    for (const Column& column : table.columns)
        addName(builder, column.name);
    addIndexes(builder, table);
    addLongValueMaps(builder, table);
    ByteEditor(builder.bytes()).put32(definition::kLength, static_cast<std::uint32_t>(builder.size()));
    return builder.take();
}

std::size_t definitionPageCount(std::size_t bytes) {
    return bytes <= page::kSize ? 1 : 1 + (bytes - page::kSize + kContinuationSize - 1) / kContinuationSize;
}

void storeDefinition(const TableDefinition& table, WriteCache& cache) {
    const Bytes bytes = encodeDefinition(table);
    std::size_t at = 0;
    for (std::size_t i = 0; i < table.pages.size(); ++i) {
        const std::size_t header = i == 0 ? 0 : definition::kContinuationStart;
        const std::size_t length = std::min(bytes.size() - at, page::kSize - header);
        ByteEditor target(cache.edit(table.pages[i], WriteStage::Definition));
        target.copy(header, std::span(bytes).subspan(at, length));
        target.put8(page::kType, page::kDefinition);
        target.put8(page::kMark, page::kMarkValue);
        target.put16(definition::kFreeBytes, statedFreeBytes(header + length));
        target.put32(definition::kNextPage, i + 1 < table.pages.size() ? table.pages[i + 1] : 0);
        at += length;
    }
}

} // namespace jet
