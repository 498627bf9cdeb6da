// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A table's definition as parsed: columns, indexes, where its pages are listed. Plain data without behaviour
// but look-up; made by TableDefinitionReader, owned by whoever asked. Offsets named `…Offset` are places in
// `bytes`, the definition's logical buffer. Layout: docs/jet4-format.md, "Table definition".

#include "platform/jet/Format.h"
#include "platform/jet/RowPointer.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

enum class ColumnType : std::uint8_t {
    Boolean = 0x01,
    Byte = 0x02,
    Integer = 0x03,
    Long = 0x04,
    Currency = 0x05,
    Single = 0x06,
    Double = 0x07,
    Date = 0x08,
    Binary = 0x09,
    Text = 0x0A,
    Ole = 0x0B,
    Memo = 0x0C,
    Guid = 0x0F,
    Numeric = 0x10,
};

struct Column {
    std::string name;
    ColumnType type{}; // may hold a value that is not listed: its fields are handed out as raw bytes
    std::uint16_t number = 0;
    std::uint16_t variableIndex = 0;
    std::uint16_t fixedOffset = 0;
    std::uint16_t position = 0;
    std::uint16_t length = 0; // bytes
    std::uint16_t sortOrder = 0;
    std::uint8_t sortVersion = 0;
    std::uint8_t flags = 0;
    std::uint8_t extendedFlags = 0;
    std::uint8_t precision = 0; // numeric only
    std::uint8_t scale = 0;     // numeric only

    bool isFixed() const noexcept { return (flags & format::column::kFixed) != 0; }
    bool isAutonumber() const noexcept { return (flags & format::column::kAutonumber) != 0; }
    bool isLongValue() const noexcept { return type == ColumnType::Memo || type == ColumnType::Ole; }
};

struct IndexColumn {
    std::uint16_t number = 0; // Column::number
    bool ascending = true;
};

struct RealIndex {
    std::vector<IndexColumn> columns;
    RowPointer usageMap;
    PageNumber root = 0;
    std::uint8_t flags = 0;
    std::uint32_t uniqueEntries = 0;
    std::size_t definitionOffset = 0;
    std::size_t statisticsOffset = 0;

    bool isUnique() const noexcept { return (flags & format::realIndex::kUnique) != 0; }
    bool ignoresNulls() const noexcept { return (flags & format::realIndex::kIgnoreNulls) != 0; }
};

struct LogicalIndex {
    std::string name;
    std::uint32_t number = 0;
    std::uint32_t realIndex = 0; // place in TableDefinition::realIndexes
    std::uint8_t role = 0;
    std::int32_t otherIndex = format::logicalIndex::kNoOtherIndex;
    PageNumber otherTable = 0;
    std::uint8_t type = 0;

    bool isPrimaryKey() const noexcept { return type == format::logicalIndex::kPrimaryKey; }
    // Another table's foreign key refers to this index.
    bool isReferenced() const noexcept {
        return type == format::logicalIndex::kForeignKey && role == format::logicalIndex::kParent;
    }
};

// Page 0 in either pointer marks a broken entry, which databases of good health contain: to be ignored.
struct LongValueMaps {
    std::uint16_t column = 0; // Column::number
    RowPointer owned;
    RowPointer free;
    std::size_t definitionOffset = 0;

    bool isBroken() const noexcept { return owned.page == 0 || free.page == 0; }
};

struct TableDefinition {
    std::vector<PageNumber> pages; // the definition's own, in order of the chain
    std::vector<std::byte> bytes;  // the logical buffer, all of its pages whole
    std::uint8_t tableType = 0;
    std::uint32_t rowCount = 0;
    std::uint32_t lastAutonumber = 0;
    std::uint16_t maxColumnCount = 0;
    std::uint16_t variableColumnCount = 0;
    std::vector<Column> columns; // by number
    std::vector<RealIndex> realIndexes;
    std::vector<LogicalIndex> logicalIndexes; // in order of storage
    RowPointer ownedMap;
    RowPointer freeMap;
    std::vector<LongValueMaps> longValueMaps;

    PageNumber page() const noexcept { return pages.front(); }
    bool isUserTable() const noexcept { return tableType == format::definition::kUserTable; }
    // Without case; null when there is no such column.
    const Column* findColumn(std::string_view name) const;
    const Column* findColumn(std::uint16_t number) const;
};

} // namespace jet
