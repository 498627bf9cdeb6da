// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableDefinitionReader.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

namespace layout = format::definition;
using test::kLogDefinition;

TableDefinition readLog(const test::Image& image) {
    test::SourceOf source(image);
    return TableDefinitionReader(source.pages).read(kLogDefinition, "Log");
}

std::string complaintAbout(const test::Image& image) {
    return test::failureOf([&] { readLog(image); });
}

TEST(TableDefinitionReader, ReadsColumnsInOrderOfTheirNumbers) {
    test::Image image = test::smallDatabase();
    std::vector<Column> columns = test::logColumns();
    std::ranges::reverse(columns);
    image.putDefinition(kLogDefinition, layout::kUserTable, 3, {3, 2}, {3, 3}, columns);
    image.putU32(kLogDefinition, layout::kLastAutonumber, 17);
    const TableDefinition table = readLog(image);
    EXPECT_TRUE(table.isUserTable());
    EXPECT_EQ(table.rowCount, 3U);
    EXPECT_EQ(table.lastAutonumber, 17U);
    EXPECT_EQ(table.ownedMap, (RowPointer{3, 2}));
    EXPECT_EQ(table.freeMap, (RowPointer{3, 3}));
    EXPECT_THAT(table.pages, ElementsAre(kLogDefinition));
    ASSERT_EQ(table.columns.size(), 5U);
    EXPECT_EQ(table.columns[1].name, "Caller");
    EXPECT_EQ(table.columns[1].type, ColumnType::Text);
    EXPECT_EQ(table.columns[3].fixedOffset, 4);
    EXPECT_EQ(table.columns[2].variableIndex, 1);
    EXPECT_EQ(table.findColumn("CALLER"), &table.columns[1]);
    EXPECT_EQ(table.findColumn("Callers"), nullptr);
    EXPECT_EQ(table.findColumn(std::uint16_t{3}), &table.columns[3]);
    EXPECT_EQ(table.findColumn(std::uint16_t{9}), nullptr);
}

TEST(TableDefinitionReader, ReadsScaleOfNumericColumns) {
    test::Image image = test::smallDatabase();
    std::vector<Column> columns = test::logColumns();
    columns[0].type = ColumnType::Numeric;
    columns[0].precision = 18;
    columns[0].scale = 4;
    image.putDefinition(kLogDefinition, layout::kUserTable, 3, {3, 2}, {3, 3}, columns);
    EXPECT_EQ(readLog(image).columns[0].precision, 18);
    EXPECT_EQ(readLog(image).columns[0].scale, 4);
}

// One real and one logical index before the end, as a definition of no columns has them.
test::Image withIndex(std::uint32_t realOrdinal) {
    test::Image image = test::smallDatabase();
    image.putDefinition(kLogDefinition, layout::kUserTable, 0, {3, 2}, {3, 3}, {});
    image.putU32(kLogDefinition, layout::kRealIndexCount, 1);
    image.putU32(kLogDefinition, layout::kLogicalIndexCount, 1);
    const test::Bytes noColumns(27, std::byte{0xFF});
    image.put(kLogDefinition, layout::kFixedSize,
              test::joined({test::u32(0),
                            test::u32(42),
                            test::u32(0), // statistics
                            test::u32(1923),
                            test::u16(3),
                            test::fromHex("00"),
                            noColumns, // real index
                            test::u32(RowPointer{3, 5}.stored()),
                            test::u32(8),
                            test::u32(0),
                            test::fromHex("89"),
                            test::Bytes(5), // logical index
                            test::u32(1625),
                            test::u32(7),
                            test::u32(realOrdinal),
                            test::fromHex("01 FF FF FF FF"),
                            test::u32(0),
                            test::fromHex("00 00 02"),
                            test::u32(0),
                            test::u16(4),
                            test::utf16("PK"),
                            test::fromHex("FF FF")}));
    image.putU32(kLogDefinition, layout::kLength, 300);
    return image;
}

TEST(TableDefinitionReader, ReadsIndexes) {
    const TableDefinition table = readLog(withIndex(0));
    ASSERT_EQ(table.realIndexes.size(), 1U);
    const RealIndex& real = table.realIndexes[0];
    ASSERT_EQ(real.columns.size(), 1U);
    EXPECT_EQ(real.columns[0].number, 3);
    EXPECT_FALSE(real.columns[0].ascending);
    EXPECT_EQ(real.root, 8U);
    EXPECT_EQ(real.usageMap, (RowPointer{3, 5}));
    EXPECT_EQ(real.uniqueEntries, 42U);
    EXPECT_TRUE(real.isUnique());
    EXPECT_FALSE(real.ignoresNulls());
    EXPECT_EQ(real.definitionOffset, 75U);
    EXPECT_EQ(real.statisticsOffset, 63U);
    ASSERT_EQ(table.logicalIndexes.size(), 1U);
    EXPECT_EQ(table.logicalIndexes[0].name, "PK");
    EXPECT_EQ(table.logicalIndexes[0].number, 7U);
    EXPECT_TRUE(table.logicalIndexes[0].isReferenced());
    EXPECT_FALSE(table.logicalIndexes[0].isPrimaryKey());
}

TEST(TableDefinitionReader, RejectsALogicalIndexWithoutARealOne) {
    EXPECT_THAT(complaintAbout(withIndex(1)), HasSubstr("refers to a real index that is not there"));
}

TEST(TableDefinitionReader, ReadsLongValueMapsAndMarksBrokenOnes) {
    test::Image image = test::smallDatabase();
    ASSERT_EQ(readLog(image).longValueMaps.size(), 1U);
    EXPECT_FALSE(readLog(image).longValueMaps[0].isBroken());
    EXPECT_EQ(readLog(image).longValueMaps[0].owned, (RowPointer{3, 4}));
    const std::size_t at = readLog(image).longValueMaps[0].definitionOffset;
    image.putU32(kLogDefinition, at + format::longValueMaps::kFree, 0);
    EXPECT_TRUE(readLog(image).longValueMaps[0].isBroken());
}

// A definition of 150 columns, cut into a chain by hand: a continuation carries 4088 bytes.
test::Image withTwoPages() {
    test::Image image = test::smallDatabase();
    std::vector<Column> columns;
    for (std::uint16_t i = 0; i < 150; ++i) {
        columns.push_back(test::logColumns()[0]);
        columns.back().name = "Number" + std::to_string(i);
        columns.back().number = i;
    }
    test::Image wide(2);
    wide.putDefinition(0, layout::kUserTable, 0, {3, 2}, {3, 3}, columns);
    const auto second = wide.bytes.begin() + 4096;
    image.put(kLogDefinition, 0, {wide.bytes.begin(), second});
    image.put(8, 0, test::fromHex("02 01 00 00 00 00 00 00"));
    image.put(8, 8, {second, second + 4088});
    image.putU32(kLogDefinition, layout::kNextPage, 8);
    return image;
}

TEST(TableDefinitionReader, JoinsTheChainOfPages) {
    const TableDefinition table = readLog(withTwoPages());
    EXPECT_THAT(table.pages, ElementsAre(kLogDefinition, 8));
    EXPECT_EQ(table.bytes.size(), 4096U + 4088);
    ASSERT_EQ(table.columns.size(), 150U);
    EXPECT_EQ(table.columns[149].name, "Number149");
}

TEST(TableDefinitionReader, RejectsALoopInTheChain) {
    test::Image image = withTwoPages();
    image.putU32(8, layout::kNextPage, kLogDefinition);
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 5: the pages of the table definition form a loop"));
    image.putU32(8, layout::kNextPage, 8);
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 8: the pages of the table definition form a loop"));
}

TEST(TableDefinitionReader, RejectsAChainOfTooManyPages) {
    test::Image image(80);
    for (PageNumber page = kLogDefinition; page < 79; ++page) {
        image.put(page, 0, test::fromHex("02 01"));
        image.putU32(page, layout::kNextPage, page + 1);
    }
    EXPECT_THAT(complaintAbout(image), HasSubstr("too many pages"));
}

TEST(TableDefinitionReader, RejectsAChainThatLeavesTheFileOrMeetsAnotherPage) {
    test::Image image = withTwoPages();
    image.putU32(kLogDefinition, layout::kNextPage, 0xFFFFFFFF);
    EXPECT_THAT(complaintAbout(image), HasSubstr("beyond the end of the file"));
    image.putU32(kLogDefinition, layout::kNextPage, test::kLogRows);
    EXPECT_THAT(complaintAbout(image),
                HasSubstr("page 6: a page of a table definition is expected, the type is 1"));
}

TEST(TableDefinitionReader, RejectsADefinitionCutShort) {
    test::Image image = withTwoPages();
    image.putU32(kLogDefinition, layout::kNextPage, 0);
    EXPECT_THAT(complaintAbout(image), HasSubstr("ends before its stated length"));
}

TEST(TableDefinitionReader, RejectsAContinuationAsTheFirstPage) {
    test::Image image = test::smallDatabase();
    image.putU32(kLogDefinition, layout::kMarker, 0);
    EXPECT_THAT(complaintAbout(image), HasSubstr("not the first page of a table definition"));
}

TEST(TableDefinitionReader, RejectsCountsThatTheBytesCannotHold) {
    for (const std::size_t field : {layout::kRealIndexCount, layout::kLogicalIndexCount}) {
        test::Image image = test::smallDatabase();
        image.putU32(kLogDefinition, field, 0xFFFFFFFF);
        EXPECT_THAT(complaintAbout(image), HasSubstr("page 5: "));
    }
    test::Image image = test::smallDatabase();
    image.putU16(kLogDefinition, layout::kColumnCount, 0xFFFF);
    EXPECT_THAT(complaintAbout(image), HasSubstr("has 65535 columns"));
}

TEST(TableDefinitionReader, RejectsPageZeroAsADefinition) {
    test::SourceOf source(test::smallDatabase());
    EXPECT_THAT(test::failureOf([&] { TableDefinitionReader(source.pages).read(0, "Log"); }),
                HasSubstr("cannot lie on page 0"));
}

} // namespace
} // namespace jet
