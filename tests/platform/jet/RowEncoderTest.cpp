// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowEncoder.h"

#include "platform/jet/FieldEncoder.h"
#include "platform/jet/TableDefinitionBuilder.h"
#include "platform/jet/TextEncoder.h"
#include "tests/platform/basic/ErrorOf.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

using basic::errorOf;

std::vector<unsigned> numbers(const Bytes& bytes) {
    std::vector<unsigned> result;
    for (const std::byte byte : bytes)
        result.push_back(std::to_integer<unsigned>(byte));
    return result;
}

// A row that two other programs read rightly.
TEST(RowEncoder, RowIsLaidOutAsTheEngineDoesIt) {
    const TableDefinition table =
        defineTable({.name = "T",
                     .columns = {{.name = "ID"},
                                 {.name = "Caller", .type = ColumnType::Text, .size = 50, .compressed = true},
                                 {.name = "Note", .type = ColumnType::Memo},
                                 {.name = "When", .type = ColumnType::Date},
                                 {.name = "Done", .type = ColumnType::Boolean}},
                     .indexes = {}});
    std::vector<RowField> fields(5);
    fields[0].stored = encodeField(std::int32_t{3}, table.columns[0]);
    fields[1].stored = encodeField(std::string("+493000003"), table.columns[1]);
    fields[3].stored = encodeField(basic::Date{43834.5}, table.columns[3]);
    fields[4].isTrue = true;
    EXPECT_EQ(numbers(RowEncoder(table).encode(fields)),
              (std::vector<unsigned>{0x05, 0x00, 0x03, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x50, 0x67,
                                     0xE5, 0x40, 0xFF, 0xFE, 0x2B, 0x34, 0x39, 0x33, 0x30, 0x30, 0x30, 0x30,
                                     0x30, 0x33, 0x1A, 0x00, 0x1A, 0x00, 0x0E, 0x00, 0x02, 0x00, 0x1B}));
}

TEST(RowEncoder, TableOfFixedColumnsHasNoOffsets) {
    const TableDefinition table =
        defineTable({.name = "T", .columns = {{.name = "A", .type = ColumnType::Integer}}, .indexes = {}});
    std::vector<RowField> fields(1);
    EXPECT_EQ(numbers(RowEncoder(table).encode(fields)), (std::vector<unsigned>{1, 0, 0, 0, 0}));
    fields[0].stored = encodeField(std::int16_t{-2}, table.columns[0]);
    EXPECT_EQ(numbers(RowEncoder(table).encode(fields)), (std::vector<unsigned>{1, 0, 0xFE, 0xFF, 1}));
}

TEST(RowEncoder, RefusesARowThatNoPageHolds) {
    TableSpec spec{.name = "T", .columns = {}, .indexes = {}};
    for (int i = 0; i < 8; ++i)
        spec.columns.push_back({.name = "B" + std::to_string(i), .type = ColumnType::Binary, .size = 510});
    const TableDefinition table = defineTable(spec);
    std::vector<RowField> fields(8, RowField{Bytes(504), false});
    const std::size_t overhead = RowEncoder(table).size(0);
    fields[7].stored = Bytes(format::dataPage::kMaxRow - overhead - std::size_t{7 * 504});
    EXPECT_EQ(RowEncoder(table).encode(fields).size(), format::dataPage::kMaxRow);
    fields[7].stored->push_back({});
    EXPECT_EQ(errorOf([&] { RowEncoder(table).encode(fields); }), basic::kProviderFailure);
}

TEST(TextEncoder, CompressesOnlyWhatReadsBackTheSame) {
    const auto stored = [](std::u16string_view text) { return numbers(encodeText(text, true)); };
    EXPECT_EQ(stored(u"abc"), (std::vector<unsigned>{0xFF, 0xFE, 'a', 'b', 'c'}));
    EXPECT_EQ(stored(u"\u00E4\u00FF\u0001"), (std::vector<unsigned>{0xFF, 0xFE, 0xE4, 0xFF, 0x01}));
    EXPECT_EQ(stored(u"ab"), (std::vector<unsigned>{'a', 0, 'b', 0}));
    EXPECT_EQ(stored(u"ab\u20AC"), (std::vector<unsigned>{'a', 0, 'b', 0, 0xAC, 0x20}));
    EXPECT_EQ(stored(std::u16string_view(u"a\0b", 3)), (std::vector<unsigned>{'a', 0, 0, 0, 'b', 0}));
    EXPECT_EQ(stored(std::u16string(1024, u'x')).size(), 1026U);
    EXPECT_EQ(stored(std::u16string(1025, u'x')).size(), 2050U);
    EXPECT_EQ(numbers(encodeText(u"abc", false)), (std::vector<unsigned>{'a', 0, 'b', 0, 'c', 0}));
}

TEST(TextEncoder, RefusesWhatWouldReadBackAsSomethingElse) {
    EXPECT_EQ(errorOf([] { encodeText(u"\uFEFFabc", false); }), basic::kInvalidProcedureCall);
    EXPECT_EQ(errorOf([] { toStoredUnits("a\xC3"); }), basic::kInvalidProcedureCall);
}

} // namespace
} // namespace jet
