// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Databases laid out byte by byte, so that reading is tested apart from the engine's own writing, and so that
// single bytes can be wrong. smallDatabase() has the catalog and one table "Log" in nine pages.

#include "platform/jet/PageSource.h"
#include "platform/jet/RowPointer.h"
#include "platform/jet/TableDefinition.h"

#include <initializer_list>
#include <string_view>
#include <vector>

namespace jet::test {

using Bytes = std::vector<std::byte>;

// "05 00 FF": blanks and bars are passed over.
Bytes fromHex(std::string_view hex);
Bytes joined(std::initializer_list<Bytes> parts);
Bytes u16(std::uint16_t value);
Bytes u32(std::uint32_t value);
Bytes utf16(std::string_view ascii);

// A file image that grows by whole pages.
class Image {
public:
    explicit Image(std::size_t pages) : bytes(pages * format::page::kSize) {}

    void put(PageNumber page, std::size_t offset, const Bytes& what);
    void putU8(PageNumber page, std::size_t offset, unsigned value);
    void putU16(PageNumber page, std::size_t offset, unsigned value);
    void putU32(PageNumber page, std::size_t offset, std::uint32_t value);
    PageBytes page(PageNumber number) const;

    // A header of a plain Jet 4 database.
    void putHeader();
    // A data page with these rows from the end of the page on; all slots without flags.
    void putRows(PageNumber page, std::uint32_t owner, const std::vector<Bytes>& rows);
    void setSlotFlags(PageNumber page, std::size_t slot, unsigned flags);
    void putDefinition(PageNumber page, std::uint8_t tableType, std::uint32_t rowCount, RowPointer ownedMap,
                       RowPointer freeMap, const std::vector<Column>& columns);

    Bytes bytes;
};

// 69 bytes: type 0, start page 0.
Bytes inlineMap(std::initializer_list<PageNumber> pages);
// One bit per page from `first` to 511.
Bytes freeMapFrom(PageNumber first);

inline constexpr PageNumber kMapPage = 3;
inline constexpr PageNumber kCatalogPage = 4;
inline constexpr PageNumber kLogDefinition = 5;
inline constexpr PageNumber kLogRows = 6;
inline constexpr PageNumber kLongValues = 7;
inline constexpr PageNumber kMoreLongValues = 8;
inline constexpr PageNumber kSmallPages = 9;

// ID long, Caller text, Note memo, When date, Done boolean.
std::vector<Column> logColumns();
std::vector<Column> catalogColumns();
Bytes catalogRow(std::uint32_t id, std::uint32_t parent, std::string_view name, std::uint16_t type,
                 std::uint32_t flags);
// A row of Log without a note; the caller is stored compressed.
Bytes logRow(std::uint32_t id, std::string_view caller);
// One with the 12 or more bytes of a note.
Bytes logRow(std::uint32_t id, std::string_view caller, const Bytes& note);
// Twelve bytes: kind and length, pointer, zero.
Bytes longValueHeader(std::uint32_t kindAndLength, RowPointer where);

// Log has the rows 1 "ann", 2 "bob", 3 "+493000003".
Image smallDatabase();

} // namespace jet::test
