// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Every offset, size and constant of a Jet 4 database file that the engine relies on, by section. Offsets are
// bytes from the start of the thing named (file, page, definition, row, field); all integers are
// little-endian unless a name says otherwise. Meanings and evidence: docs/jet4-format.md.

#include <array>
#include <cstddef>
#include <cstdint>

namespace jet::format {

namespace page {
inline constexpr std::size_t kSize = 4096;
inline constexpr std::uint32_t kMaxCount = 0x80000; // 2 GiB
inline constexpr std::size_t kType = 0;             // u8, one of the types below
inline constexpr std::size_t kMark = 1;             // u8, kMarkValue on every page that was ever initialised
inline constexpr std::size_t kFreeBytes = 2;        // u16
inline constexpr std::size_t kOwner = 4;            // u32, page of the table definition
inline constexpr std::uint8_t kMarkValue = 0x01;
inline constexpr std::uint8_t kUnused = 0x00;
inline constexpr std::uint8_t kData = 0x01; // rows, long values and usage maps
inline constexpr std::uint8_t kDefinition = 0x02;
inline constexpr std::uint8_t kIndexNode = 0x03;
inline constexpr std::uint8_t kIndexLeaf = 0x04;
inline constexpr std::uint8_t kUsageBitmap = 0x05;
inline constexpr std::uint8_t kFreedDefinition = 0x08;
inline constexpr std::uint8_t kFreedData = 0x09;
} // namespace page

namespace header {
inline constexpr std::size_t kMagic = 0x00; // u32
inline constexpr std::uint32_t kMagicValue = 0x00000100;
inline constexpr std::size_t kSignature = 0x04; // 16 bytes, text ending in NUL
inline constexpr std::size_t kSignatureSize = 16;
inline constexpr char kJetSignature[] = "Standard Jet DB";
inline constexpr char kAceSignature[] = "Standard ACE DB";
inline constexpr char kMoneySignature[] = "MSISAM Database";
inline constexpr std::size_t kVersion = 0x14; // u8
inline constexpr std::uint8_t kVersionJet3 = 0;
inline constexpr std::uint8_t kVersionJet4 = 1;
inline constexpr std::size_t kMasked = 0x18; // RC4 with kMaskKey over kMaskedSize bytes
inline constexpr std::size_t kMaskedSize = 128;
inline constexpr std::array<std::uint8_t, 4> kMaskKey{0xC7, 0xDA, 0x39, 0x6B};
inline constexpr std::size_t kMaskedConstant = 0x18; // 36 bytes, the same in every file
inline constexpr std::size_t kCodePage = 0x3C;       // u16, masked like all up to kCreated
inline constexpr std::size_t kDatabaseKey = 0x3E;    // u32, 0 = pages are plain
inline constexpr std::size_t kPassword = 0x42;       // 40 bytes, masked with the integer part of kCreated
inline constexpr std::size_t kPasswordSize = 40;
inline constexpr std::size_t kBuild = 0x6A;        // u32
inline constexpr std::size_t kSortOrder = 0x6E;    // u16 LCID, u8 0, u8 version
inline constexpr std::size_t kSortVersion = 0x71;  // u8
inline constexpr std::size_t kCreated = 0x72;      // double, days since 1899-12-30
inline constexpr std::size_t kFormatNumber = 0x98; // u32
inline constexpr std::uint32_t kFormatNumberValue = 1620;
inline constexpr std::size_t kFormatText = 0x9C; // "4.0" and NUL
inline constexpr std::uint16_t kGeneralSortOrder = 0x0409;
inline constexpr std::uint16_t kWesternCodePage = 1252;
} // namespace header

// One counter per possible writer at the end of page 0. 0 while that writer is writing.
namespace commitWords {
inline constexpr std::size_t kOffset = 0xE00;
inline constexpr std::size_t kCount = 256;
inline constexpr std::size_t kSize = 2 * kCount;
inline constexpr std::uint16_t kWriting = 0x0000;
inline constexpr std::uint16_t kDamaged = 0x0001;
inline constexpr std::uint16_t kInitial = 0x0100;
} // namespace commitWords

// Offsets into the definition's logical buffer: its first page whole, then each further page from
// kContinuationStart on.
namespace definition {
inline constexpr std::size_t kContinuationStart = 8;
inline constexpr std::size_t kMaxPages = 64;
inline constexpr std::size_t kFreeBytes = 2; // u16
inline constexpr std::size_t kNextPage = 4;  // u32, 0 = last
inline constexpr std::size_t kLength = 8;    // u32, from offset 0
inline constexpr std::size_t kMarker = 12;   // u32
inline constexpr std::uint32_t kMarkerValue = 1625;
inline constexpr std::size_t kRowCount = 16;        // u32
inline constexpr std::size_t kLastAutonumber = 20;  // u32, the last one handed out
inline constexpr std::size_t kAutonumberStep = 24;  // u8, 1
inline constexpr std::size_t kTableType = 40;       // u8
inline constexpr std::size_t kMaxColumnCount = 41;  // u16, with deleted ones; goes into new rows
inline constexpr std::size_t kVariableColumns = 43; // u16, with deleted ones
inline constexpr std::size_t kColumnCount = 45;     // u16
inline constexpr std::size_t kLogicalIndexCount = 47;
inline constexpr std::size_t kRealIndexCount = 51;
inline constexpr std::size_t kOwnedMap = 55; // row pointer: data pages of the table
inline constexpr std::size_t kFreeMap = 59;  // row pointer: those with free space
inline constexpr std::size_t kFixedSize = 63;
inline constexpr std::uint8_t kUserTable = 0x4E;
inline constexpr std::uint8_t kSystemTable = 0x53;
inline constexpr std::size_t kMaxColumns = 255;
inline constexpr std::size_t kMaxIndexes = 32;
inline constexpr std::size_t kMaxNameUnits = 64; // UTF-16 units of a name
// Statistics, one block per real index, follow the fixed part.
inline constexpr std::size_t kStatisticsSize = 12;
inline constexpr std::size_t kUniqueEntries = 4; // u32 within the block
// Names: u16 length in bytes, then UTF-16.
inline constexpr std::size_t kNameLengthSize = 2;
} // namespace definition

// One column definition; they follow the index statistics.
namespace column {
inline constexpr std::size_t kSize = 25;
inline constexpr std::size_t kType = 0;           // u8, ColumnType
inline constexpr std::size_t kMarker = 1;         // u32, definition::kMarkerValue
inline constexpr std::size_t kNumber = 5;         // u16, bit in the null mask
inline constexpr std::size_t kVariableIndex = 7;  // u16, place in the row's offset table
inline constexpr std::size_t kPosition = 9;       // u16
inline constexpr std::size_t kSortOrder = 11;     // u16 LCID, then a zero byte
inline constexpr std::size_t kSortVersion = 14;   // u8
inline constexpr std::size_t kPrecision = 11;     // u8, numeric only, in place of the sort order
inline constexpr std::size_t kScale = 12;         // u8, numeric only
inline constexpr std::size_t kFlags = 15;         // u8
inline constexpr std::size_t kExtendedFlags = 16; // u8
inline constexpr std::size_t kFixedOffset = 21;   // u16, from the end of the row's column count
inline constexpr std::size_t kLength = 23;        // u16
inline constexpr std::uint8_t kFixed = 0x01;
inline constexpr std::uint8_t kNullable = 0x02;
inline constexpr std::uint8_t kAutonumber = 0x04;
inline constexpr std::uint8_t kSystem = 0x10;
inline constexpr std::uint8_t kSecurity = 0x20;
inline constexpr std::uint8_t kAutonumberGuid = 0x40;
inline constexpr std::uint8_t kHyperlink = 0x80;
inline constexpr std::uint8_t kCompressible = 0x01; // extended flag
} // namespace column

// Definitions of real (stored) indexes, one block each, follow the column names.
namespace realIndex {
inline constexpr std::size_t kSize = 52;
inline constexpr std::size_t kMarker = 0; // u32
inline constexpr std::uint32_t kMarkerValue = 1923;
inline constexpr std::size_t kColumns = 4; // kMaxColumns times u16 column number and u8 order
inline constexpr std::size_t kMaxColumns = 10;
inline constexpr std::size_t kColumnSize = 3;
inline constexpr std::uint16_t kNoColumn = 0xFFFF;
inline constexpr std::uint8_t kAscending = 1;
inline constexpr std::size_t kUsageMap = 34; // row pointer: the index's pages, root included
inline constexpr std::size_t kRoot = 38;     // u32 page
inline constexpr std::size_t kFlags = 46;    // u8
inline constexpr std::uint8_t kUnique = 0x01;
inline constexpr std::uint8_t kIgnoreNulls = 0x02;
inline constexpr std::uint8_t kRequired = 0x08;
inline constexpr std::uint8_t kAlwaysSet = 0x80;
} // namespace realIndex

// Definitions of logical indexes, then their names in the same order.
namespace logicalIndex {
inline constexpr std::size_t kSize = 28;
inline constexpr std::size_t kMarker = 0;         // u32, definition::kMarkerValue
inline constexpr std::size_t kNumber = 4;         // u32
inline constexpr std::size_t kRealIndex = 8;      // u32, place among the real indexes
inline constexpr std::size_t kRole = 12;          // u8, in a relationship
inline constexpr std::size_t kOtherIndex = 13;    // i32, kNoOtherIndex if none
inline constexpr std::size_t kOtherTable = 17;    // u32 definition page
inline constexpr std::size_t kCascadeUpdate = 21; // u8
inline constexpr std::size_t kCascadeDelete = 22; // u8
inline constexpr std::size_t kType = 23;          // u8
inline constexpr std::int32_t kNoOtherIndex = -1;
inline constexpr std::uint8_t kNoCascade = 4; // what the engine writes outside relationships
inline constexpr std::uint8_t kPlain = 0;
inline constexpr std::uint8_t kPrimaryKey = 1;
inline constexpr std::uint8_t kForeignKey = 2;
inline constexpr std::uint8_t kParent = 1; // roles
inline constexpr std::uint8_t kChild = 2;
} // namespace logicalIndex

// Maps of the long values' pages, one entry per column, end the definition.
namespace longValueMaps {
inline constexpr std::size_t kSize = 10;
inline constexpr std::size_t kColumn = 0; // u16
inline constexpr std::size_t kOwned = 2;  // row pointer
inline constexpr std::size_t kFree = 6;   // row pointer
inline constexpr std::uint16_t kEnd = 0xFFFF;
} // namespace longValueMaps

namespace dataPage {
inline constexpr std::size_t kSlotCount = 12; // u16
inline constexpr std::size_t kSlots = 14;     // u16 each: offset and flags
inline constexpr std::size_t kSlotSize = 2;
inline constexpr std::size_t kMaxSlots = 255;
inline constexpr std::size_t kMaxRow = 4060;
inline constexpr std::uint16_t kOffsetMask = 0x1FFF;
inline constexpr std::uint16_t kFlagMask = 0xC000;
inline constexpr std::uint16_t kPointer = 0x4000;   // the row moved; a row pointer lies here
inline constexpr std::uint16_t kRelocated = 0x8000; // a moved row, reached through its pointer
inline constexpr std::uint16_t kDeleted = 0xC000;
inline constexpr std::uint32_t kMapOwner = 0;                // page::kOwner of a page of usage maps
inline constexpr std::uint32_t kLongValueOwner = 0x4C41564C; // page::kOwner of a long-value page: "LVAL"
inline constexpr std::size_t kRowPointerSize = 4;            // u8 row, then u24 page
} // namespace dataPage

namespace row {
inline constexpr std::size_t kColumnCount = 0; // u16
inline constexpr std::size_t kFixedArea = 2;
inline constexpr std::size_t kOffsetSize = 2;        // of one entry of the variable columns' offset table
inline constexpr std::size_t kVariableCountSize = 2; // right before the null mask
} // namespace row

namespace text {
inline constexpr std::uint8_t kMarker0 = 0xFF; // these two bytes first: compressed
inline constexpr std::uint8_t kMarker1 = 0xFE;
inline constexpr std::size_t kMinCompressedUnits = 3;
inline constexpr std::size_t kMaxCompressedUnits = 1024;
} // namespace text

namespace numeric {
inline constexpr std::size_t kSize = 17; // u8 sign, then four u32, the most significant first
inline constexpr std::uint8_t kNegative = 0x80;
} // namespace numeric

namespace longValue {
inline constexpr std::size_t kHeaderSize = 12;
inline constexpr std::size_t kLength = 0; // u32: kind in the two highest bits
inline constexpr std::size_t kRow = 4;    // row pointer
inline constexpr std::uint32_t kKindMask = 0xC0000000;
inline constexpr std::uint32_t kLengthMask = 0x3FFFFFFF;
inline constexpr std::uint32_t kInline = 0x80000000;    // the data follows the header
inline constexpr std::uint32_t kSingleRow = 0x40000000; // one row holds exactly the data
inline constexpr std::uint32_t kChain = 0x00000000;     // each row begins with a pointer to the next
inline constexpr std::size_t kMaxInline = 64;
inline constexpr std::size_t kMaxRow = 4076;
} // namespace longValue

namespace usageMap {
inline constexpr std::size_t kType = 0; // u8
inline constexpr std::uint8_t kInline = 0;
inline constexpr std::uint8_t kReference = 1;
inline constexpr std::size_t kStartPage = 1; // u32, inline only
inline constexpr std::size_t kBitmap = 5;    // inline only
inline constexpr std::size_t kPointers = 1;  // u32 pages, reference only
inline constexpr std::size_t kPointerSize = 4;
inline constexpr std::size_t kUsualRowSize = 69;
inline constexpr std::uint32_t kUsualInlinePages = 512;
inline constexpr std::size_t kPageBitmap = 4; // on a usage-bitmap page
inline constexpr std::uint32_t kPagesPerBitmap = 8 * (page::kSize - kPageBitmap);
inline constexpr std::uint32_t kGlobalPage = 1; // the map of free pages: row 0 of this page
inline constexpr std::uint8_t kGlobalRow = 0;
} // namespace usageMap

namespace indexPage {
inline constexpr std::size_t kPrevious = 12;     // u32 page on the same level, 0 = none
inline constexpr std::size_t kNext = 16;         // u32
inline constexpr std::size_t kTail = 20;         // u32, on nodes: a last child without an entry
inline constexpr std::size_t kPrefixLength = 24; // u16
inline constexpr std::size_t kEntryEnds = 27;    // bitmask: bit p set = an entry ends p bytes after kEntries
inline constexpr std::size_t kEntryEndsSize = 453;
inline constexpr std::size_t kEntries = 480;
inline constexpr std::size_t kEntrySpace = page::kSize - kEntries;
inline constexpr std::size_t kPointerSize = 4;      // u24 page big-endian, u8 row, after the key
inline constexpr std::size_t kChildPointerSize = 4; // u32 big-endian, ends the entries of a node
inline constexpr std::size_t kMaxLevels = 16;
} // namespace indexPage

namespace indexKey {
inline constexpr std::uint8_t kValue = 0x7F; // before each value; descending keys are complemented whole
inline constexpr std::uint8_t kNull = 0x00;
} // namespace indexKey

namespace catalog {
inline constexpr std::uint32_t kDefinitionPage = 2;
inline constexpr std::uint32_t kPageMask = 0x00FFFFFF; // of a table's Id
inline constexpr std::int32_t kTablesContainer = 0x0F000001;
inline constexpr std::int16_t kTypeTable = 1;
inline constexpr std::int16_t kTypeOdbcLink = 4;
inline constexpr std::int16_t kTypeLinkedTable = 6;
inline constexpr std::uint32_t kSystemFlags = 0x80000002;
inline constexpr std::uint32_t kHiddenFlag = 0x00000008;
} // namespace catalog

// The file beside the database that tells who is in it.
namespace lockFile {
inline constexpr std::uint64_t kUserLocks = 0x10000000; // user u holds the byte at kUserLocks + u
inline constexpr std::size_t kUsers = 255;
inline constexpr std::size_t kNameSize = 32;
inline constexpr std::size_t kEntrySize =
    2 * kNameSize; // computer, then account; user u's at (u - 1) entries
} // namespace lockFile

} // namespace jet::format
