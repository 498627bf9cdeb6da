// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableScan.h"

#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/ValueDecoder.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using test::kLogRows;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr PageNumber kMoreRows = 8;

// Log with a second page of rows instead of long values.
test::Image withTwoPages() {
    test::Image image = test::smallDatabase();
    image.putRows(test::kMapPage, 0,
                  {test::inlineMap({test::kCatalogPage}), test::inlineMap({}),
                   test::inlineMap({kLogRows, kMoreRows}), test::inlineMap({})});
    image.putRows(kMoreRows, test::kLogDefinition, {test::logRow(7, "moved"), test::logRow(8, "last")});
    return image;
}

test::Image withMovedRow() {
    test::Image image = withTwoPages();
    // The slot keeps its old length, the pointer takes four bytes of it.
    test::Bytes pointer = test::logRow(2, "bob");
    std::ranges::copy(test::u32(RowPointer{kMoreRows, 0}.stored()), pointer.begin());
    image.putRows(kLogRows, test::kLogDefinition, {test::logRow(1, "ann"), pointer, test::logRow(3, "cid")});
    image.setSlotFlags(kLogRows, 1, format::dataPage::kPointer);
    image.setSlotFlags(kMoreRows, 0, format::dataPage::kRelocated);
    return image;
}

std::vector<std::string> callers(const test::Image& image) {
    test::SourceOf source(image);
    const TableDefinition table = TableDefinitionReader(source.pages).read(test::kLogDefinition, "Log");
    TableScan scan(source.pages, table, "Log");
    ValueDecoder decoder(source.pages);
    std::vector<std::string> result;
    while (scan.next())
        result.push_back(std::get<std::string>(decoder.value(scan.row(), *table.findColumn("Caller"))));
    return result;
}

std::string complaintAbout(const test::Image& image) {
    return test::failureOf([&] { callers(image); });
}

TEST(TableScan, VisitsPagesInAscendingOrder) {
    EXPECT_THAT(callers(withTwoPages()), ElementsAre("ann", "bob", "+493000003", "moved", "last"));
}

TEST(TableScan, FollowsAMovedRowFromItsOldPlaceOnly) {
    EXPECT_THAT(callers(withMovedRow()), ElementsAre("ann", "moved", "cid", "last"));
}

TEST(TableScan, PassesOverDeletedRows) {
    test::Image image = withTwoPages();
    image.setSlotFlags(kLogRows, 0, format::dataPage::kDeleted);
    image.setSlotFlags(kMoreRows, 1, format::dataPage::kDeleted);
    EXPECT_THAT(callers(image), ElementsAre("bob", "+493000003", "moved"));
}

TEST(TableScan, ReadsAnEmptyTable) {
    test::Image image = test::smallDatabase();
    image.putRows(kLogRows, test::kLogDefinition, {});
    EXPECT_THAT(callers(image), IsEmpty());
}

TEST(TableScan, TellsWhereARowIsKnown) {
    test::SourceOf source(withMovedRow());
    const TableDefinition table = TableDefinitionReader(source.pages).read(test::kLogDefinition, "Log");
    TableScan scan(source.pages, table, "Log");
    ASSERT_TRUE(scan.next() && scan.next());
    EXPECT_EQ(scan.position(), (RowPointer{kLogRows, 1}));
    EXPECT_TRUE(scan.moveTo({kMoreRows, 1}));
    EXPECT_EQ(scan.position(), (RowPointer{kMoreRows, 1}));
    EXPECT_FALSE(scan.next());
    EXPECT_TRUE(scan.moveTo({kLogRows, 0}));
    EXPECT_TRUE(scan.next());
    EXPECT_EQ(scan.position(), (RowPointer{kLogRows, 1}));
}

TEST(TableScan, FindsNoRowWhereNoneIs) {
    test::SourceOf source(withMovedRow());
    const TableDefinition table = TableDefinitionReader(source.pages).read(test::kLogDefinition, "Log");
    TableScan scan(source.pages, table, "Log");
    EXPECT_FALSE(scan.moveTo({kLogRows, 3}));
    EXPECT_FALSE(scan.moveTo({kMoreRows, 0})); // the body of a moved row
    EXPECT_FALSE(scan.moveTo({test::kCatalogPage, 0}));
}

TEST(TableScan, RejectsAPageOfAnotherTable) {
    test::Image image = withTwoPages();
    image.putU32(kMoreRows, format::page::kOwner, 77);
    EXPECT_THAT(complaintAbout(image), HasSubstr("table Log, page 8: the page belongs to 77"));
}

TEST(TableScan, RejectsAPageThatWasNeverWritten) {
    test::Image image = withTwoPages();
    image.put(kMoreRows, 0, test::Bytes(4096));
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 8: a data page is expected, the type is 0"));
}

TEST(TableScan, RejectsAMapThatNamesPagesBeyondTheEnd) {
    test::Image image = withTwoPages();
    image.bytes.resize(kMoreRows * format::page::kSize);
    EXPECT_THAT(complaintAbout(image), HasSubstr("names page 8, which lies beyond the end"));
}

TEST(TableScan, RejectsAPointerToARowThatWasNotMoved) {
    test::Image image = withMovedRow();
    image.setSlotFlags(kMoreRows, 0, 0);
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 8, row 0: a moved row is expected"));
    image.setSlotFlags(kMoreRows, 0, format::dataPage::kDeleted);
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 8, row 0: a moved row is expected"));
}

TEST(TableScan, RejectsAPointerToItself) {
    test::Image image = withMovedRow();
    test::Bytes pointer = test::u32(RowPointer{kLogRows, 1}.stored());
    image.putRows(kLogRows, test::kLogDefinition, {test::logRow(1, "ann"), pointer, test::logRow(3, "cid")});
    image.setSlotFlags(kLogRows, 1, format::dataPage::kPointer);
    EXPECT_THAT(complaintAbout(image), HasSubstr("a moved row is expected"));
}

TEST(TableScan, RejectsAPointerIntoAnotherTable) {
    test::Image image = withMovedRow();
    image.putRows(test::kCatalogPage, format::catalog::kDefinitionPage, {test::logRow(7, "foreign")});
    image.setSlotFlags(test::kCatalogPage, 0, format::dataPage::kRelocated);
    const test::Bytes pointer = test::u32(RowPointer{test::kCatalogPage, 0}.stored());
    image.putRows(kLogRows, test::kLogDefinition, {pointer});
    image.setSlotFlags(kLogRows, 0, format::dataPage::kPointer);
    EXPECT_THAT(complaintAbout(image), HasSubstr("moved to page 4, which is not the table's"));
}

TEST(TableScan, RejectsAPointerBeyondTheFile) {
    test::Image image = withMovedRow();
    image.putRows(kLogRows, test::kLogDefinition, {test::fromHex("00 FF FF FF")});
    image.setSlotFlags(kLogRows, 0, format::dataPage::kPointer);
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 16777215: the page lies beyond the end"));
}

} // namespace
} // namespace jet
