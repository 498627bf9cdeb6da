// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TablePages.h"

#include "platform/jet/PageSnapshot.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/TableScan.h"
#include "platform/jet/ValueDecoder.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::UnorderedElementsAre;

TEST(TablePages, AreMapRowsAndLongValues) {
    test::SourceOf source(test::smallDatabase());
    const TableDefinition table = TableDefinitionReader(source.pages).read(test::kLogDefinition, "Log");
    EXPECT_THAT(
        tablePages(source.pages, table, "Log"),
        UnorderedElementsAre(test::kMapPage, test::kLogRows, test::kLongValues, test::kMoreLongValues));
}

TEST(TablePages, AreAllPagesWhenLongValuesAreNotListed) {
    test::SourceOf source(test::smallDatabase());
    TableDefinition table = TableDefinitionReader(source.pages).read(test::kLogDefinition, "Log");
    table.longValueMaps[0].owned = {};
    EXPECT_EQ(tablePages(source.pages, table, "Log").size(), test::kSmallPages);
    table.longValueMaps.clear();
    EXPECT_EQ(tablePages(source.pages, table, "Log").size(), test::kSmallPages);
}

TEST(TablePages, SufficeToReadAllRowsWithoutTheFile) {
    test::Image image = test::smallDatabase();
    image.putRows(test::kLongValues, format::dataPage::kLongValueOwner, {test::utf16("a note")});
    image.putRows(
        test::kLogRows, test::kLogDefinition,
        {test::logRow(1, "ann",
                      test::longValueHeader(format::longValue::kSingleRow | 12, {test::kLongValues, 0}))});
    test::SourceOf source(image);
    const TableDefinition table = TableDefinitionReader(source.pages).read(test::kLogDefinition, "Log");
    PageSnapshot snapshot(source.pages, tablePages(source.pages, table, "Log"));
    source.file.bytes.clear();
    TableScan scan(snapshot, table, "Log");
    ValueDecoder decoder(snapshot);
    ASSERT_TRUE(scan.next());
    EXPECT_EQ(decoder.value(scan.row(), *table.findColumn("Note")), basic::Variant(std::string("a note")));
    EXPECT_FALSE(scan.next());
}

} // namespace
} // namespace jet
