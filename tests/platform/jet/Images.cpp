// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/Images.h"

#include "platform/jet/Rc4.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>

namespace jet::test {
namespace {

std::byte nibblePair(char high, char low) {
    const std::string pair{high, low};
    return static_cast<std::byte>(std::stoul(pair, nullptr, 16));
}

Column column(const char* name, ColumnType type, std::uint16_t number, bool isFixed, std::uint16_t place,
              std::uint16_t length) {
    Column result;
    result.name = name;
    result.type = type;
    result.number = number;
    result.flags = isFixed ? 0x03 : 0x02;
    (isFixed ? result.fixedOffset : result.variableIndex) = place;
    result.length = length;
    return result;
}

Bytes columnBlock(const Column& column) {
    Bytes block(format::column::kSize);
    block[format::column::kType] = static_cast<std::byte>(column.type);
    const auto put = [&block](std::size_t at, std::uint16_t value) {
        std::ranges::copy(u16(value), block.begin() + static_cast<std::ptrdiff_t>(at));
    };
    put(format::column::kNumber, column.number);
    put(format::column::kVariableIndex, column.variableIndex);
    put(format::column::kFixedOffset, column.fixedOffset);
    put(format::column::kLength, column.length);
    if (column.type == ColumnType::Numeric) {
        block[format::column::kPrecision] = std::byte{column.precision};
        block[format::column::kScale] = std::byte{column.scale};
    }
    block[format::column::kFlags] = std::byte{column.flags};
    return block;
}

} // namespace

Bytes fromHex(std::string_view hex) {
    std::string digits;
    std::ranges::copy_if(hex, std::back_inserter(digits),
                         [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; });
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes.push_back(nibblePair(digits[i], digits[i + 1]));
    return bytes;
}

Bytes joined(std::initializer_list<Bytes> parts) {
    Bytes whole;
    for (const Bytes& part : parts)
        whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

Bytes u16(std::uint16_t value) {
    return {static_cast<std::byte>(value & 0xFFU), static_cast<std::byte>(value >> 8U)};
}

Bytes u32(std::uint32_t value) {
    return joined(
        {u16(static_cast<std::uint16_t>(value & 0xFFFFU)), u16(static_cast<std::uint16_t>(value >> 16U))});
}

Bytes utf16(std::string_view ascii) {
    Bytes bytes;
    for (const char c : ascii) {
        bytes.push_back(static_cast<std::byte>(c));
        bytes.push_back(std::byte{0});
    }
    return bytes;
}

void Image::put(PageNumber page, std::size_t offset, const Bytes& what) {
    std::ranges::copy(what, bytes.begin() + static_cast<std::ptrdiff_t>(page * format::page::kSize + offset));
}

void Image::putU8(PageNumber page, std::size_t offset, unsigned value) {
    put(page, offset, {static_cast<std::byte>(value)});
}

void Image::putU16(PageNumber page, std::size_t offset, unsigned value) {
    put(page, offset, u16(static_cast<std::uint16_t>(value)));
}

void Image::putU32(PageNumber page, std::size_t offset, std::uint32_t value) {
    put(page, offset, u32(value));
}

PageBytes Image::page(PageNumber number) const {
    return PageBytes(bytes.data() + number * format::page::kSize, format::page::kSize);
}

void Image::putHeader() {
    put(0, 0, fromHex("00 01 00 00"));
    Bytes signature(format::header::kSignatureSize);
    std::memcpy(signature.data(), format::header::kJetSignature, sizeof(format::header::kJetSignature));
    put(0, format::header::kSignature, signature);
    putU8(0, format::header::kVersion, format::header::kVersionJet4);
    const auto start = bytes.begin() + format::header::kMasked;
    applyRc4(format::header::kMaskKey, {start, format::header::kMaskedSize});
    for (std::size_t i = 0; i < format::commitWords::kCount; ++i)
        putU16(0, format::commitWords::kOffset + 2 * i, format::commitWords::kInitial);
}

void Image::putRows(PageNumber page, std::uint32_t owner, const std::vector<Bytes>& rows) {
    put(page, 0, Bytes(format::page::kSize));
    put(page, 0, fromHex("01 01"));
    putU32(page, format::page::kOwner, owner);
    putU16(page, format::dataPage::kSlotCount, static_cast<unsigned>(rows.size()));
    std::size_t end = format::page::kSize;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        end -= rows[i].size();
        put(page, end, rows[i]);
        putU16(page, format::dataPage::kSlots + 2 * i, static_cast<unsigned>(end));
    }
    const std::size_t free = end - format::dataPage::kSlots - 2 * rows.size();
    putU16(page, format::page::kFreeBytes, static_cast<unsigned>(free));
}

void Image::setSlotFlags(PageNumber page, std::size_t slot, unsigned flags) {
    const std::size_t high = page * format::page::kSize + format::dataPage::kSlots + 2 * slot + 1;
    bytes[high] = (bytes[high] & std::byte{0x1F}) | static_cast<std::byte>(flags >> 8U);
}

void Image::putDefinition(PageNumber page, std::uint8_t tableType, std::uint32_t rowCount,
                          RowPointer ownedMap, RowPointer freeMap, const std::vector<Column>& columns) {
    namespace layout = format::definition;
    Bytes tail;
    std::uint16_t variable = 0;
    for (const Column& column : columns) {
        tail = joined({tail, columnBlock(column)});
        variable = static_cast<std::uint16_t>(variable + (column.isFixed() ? 0 : 1));
    }
    for (const Column& column : columns)
        tail = joined({tail, u16(static_cast<std::uint16_t>(2 * column.name.size())), utf16(column.name)});
    for (const Column& column : columns) {
        if (column.isLongValue()) // its maps: rows 4 and 5 of the map page
            tail = joined({tail, u16(column.number), u32(RowPointer{kMapPage, 4}.stored()),
                           u32(RowPointer{kMapPage, 5}.stored())});
    }
    tail = joined({tail, u16(format::longValueMaps::kEnd)});
    put(page, 0, Bytes(format::page::kSize));
    put(page, 0, fromHex("02 01"));
    putU32(page, layout::kLength, static_cast<std::uint32_t>(layout::kFixedSize + tail.size()));
    putU32(page, layout::kMarker, layout::kMarkerValue);
    putU32(page, layout::kRowCount, rowCount);
    putU8(page, layout::kTableType, tableType);
    putU16(page, layout::kMaxColumnCount, static_cast<unsigned>(columns.size()));
    putU16(page, layout::kVariableColumns, variable);
    putU16(page, layout::kColumnCount, static_cast<unsigned>(columns.size()));
    putU32(page, layout::kOwnedMap, ownedMap.stored());
    putU32(page, layout::kFreeMap, freeMap.stored());
    put(page, layout::kFixedSize, tail);
}

Bytes inlineMap(std::initializer_list<PageNumber> pages) {
    Bytes map(format::usageMap::kUsualRowSize);
    for (const PageNumber page : pages)
        map[format::usageMap::kBitmap + page / 8] |= static_cast<std::byte>(1U << page % 8);
    return map;
}

Bytes freeMapFrom(PageNumber first) {
    Bytes map(format::usageMap::kUsualRowSize);
    for (PageNumber page = first; page < format::usageMap::kUsualInlinePages; ++page)
        map[format::usageMap::kBitmap + page / 8] |= static_cast<std::byte>(1U << page % 8);
    return map;
}

std::vector<Column> logColumns() {
    return {column("ID", ColumnType::Long, 0, true, 0, 4),
            column("Caller", ColumnType::Text, 1, false, 0, 100),
            column("Note", ColumnType::Memo, 2, false, 1, 0), column("When", ColumnType::Date, 3, true, 4, 8),
            column("Done", ColumnType::Boolean, 4, true, 12, 1)};
}

std::vector<Column> catalogColumns() {
    return {column("Id", ColumnType::Long, 0, true, 0, 4),
            column("ParentId", ColumnType::Long, 1, true, 4, 4),
            column("Name", ColumnType::Text, 2, false, 0, 510),
            column("Type", ColumnType::Integer, 3, true, 8, 2),
            column("Flags", ColumnType::Long, 4, true, 10, 4)};
}

Bytes catalogRow(std::uint32_t id, std::uint32_t parent, std::string_view name, std::uint16_t type,
                 std::uint32_t flags) {
    const auto end = static_cast<std::uint16_t>(16 + 2 * name.size());
    return joined({u16(5), u32(id), u32(parent), u16(type), u32(flags), utf16(name), u16(end), u16(16),
                   u16(1), fromHex("1F")});
}

Bytes logRow(std::uint32_t id, std::string_view caller) {
    const auto end = static_cast<std::uint16_t>(16 + caller.size());
    Bytes text = fromHex("FF FE");
    for (const char c : caller)
        text.push_back(static_cast<std::byte>(c));
    return joined({u16(5), u32(id), fromHex("00 00 00 00 50 67 E5 40"), text, u16(end), u16(end), u16(14),
                   u16(2), fromHex("1B")});
}

Bytes logRow(std::uint32_t id, std::string_view caller, const Bytes& note) {
    const auto noteAt = static_cast<std::uint16_t>(14 + 2 * caller.size());
    const auto end = static_cast<std::uint16_t>(noteAt + note.size());
    return joined({u16(5), u32(id), fromHex("00 00 00 00 50 67 E5 40"), utf16(caller), note, u16(end),
                   u16(noteAt), u16(14), u16(2), fromHex("1F")});
}

Bytes longValueHeader(std::uint32_t kindAndLength, RowPointer where) {
    return joined({u32(kindAndLength), u32(where.stored()), u32(0)});
}

Image smallDatabase() {
    Image image(kSmallPages);
    image.putHeader();
    image.putRows(1, 1, {freeMapFrom(kSmallPages), Bytes(format::usageMap::kUsualRowSize)});
    image.putDefinition(format::catalog::kDefinitionPage, format::definition::kSystemTable, 3, {kMapPage, 0},
                        {kMapPage, 1}, catalogColumns());
    image.putRows(kMapPage, format::dataPage::kMapOwner,
                  {inlineMap({kCatalogPage}), inlineMap({}), inlineMap({kLogRows}), inlineMap({kLogRows}),
                   inlineMap({kLongValues, kMoreLongValues}), inlineMap({})});
    image.putRows(kCatalogPage, format::catalog::kDefinitionPage,
                  {catalogRow(0x0F000001, 0x0F000000, "Tables", 3, 0x80000000),
                   catalogRow(2, 0x0F000001, "MSysObjects", 1, 0x80000000),
                   catalogRow(kLogDefinition, 0x0F000001, "Log", 1, 0)});
    image.putDefinition(kLogDefinition, format::definition::kUserTable, 3, {kMapPage, 2}, {kMapPage, 3},
                        logColumns());
    image.putRows(kLogRows, kLogDefinition, {logRow(1, "ann"), logRow(2, "bob"), logRow(3, "+493000003")});
    image.putRows(kLongValues, format::dataPage::kLongValueOwner, {});
    image.putRows(kMoreLongValues, format::dataPage::kLongValueOwner, {});
    return image;
}

} // namespace jet::test
