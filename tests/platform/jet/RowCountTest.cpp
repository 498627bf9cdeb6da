// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowCount.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using test::kLogDefinition;
using test::kLogRows;

std::uint32_t count(const test::Image& image) {
    test::SourceOf source(image);
    return countRows(source.pages, TableHead::read(source.pages, kLogDefinition, "Log"), "Log");
}

TEST(RowCount, IsTheDefinitionsAndCostsOnePage) {
    test::Image image = test::smallDatabase();
    image.putU32(kLogDefinition, format::definition::kRowCount, 1000000);
    test::SourceOf source(image);
    EXPECT_EQ(countRows(source.pages, TableHead::read(source.pages, kLogDefinition), "Log"), 1000000U);
    EXPECT_EQ(source.file.reads.size(), 1U);
}

TEST(RowCount, CountsRowsWhenTheDefinitionWronglySaysZero) {
    test::Image image = test::smallDatabase();
    image.putU32(kLogDefinition, format::definition::kRowCount, 0);
    EXPECT_EQ(count(image), 3U);
}

TEST(RowCount, OfATableWhoseRowsAreAllDeletedIsZero) {
    test::Image image = test::smallDatabase();
    image.putU32(kLogDefinition, format::definition::kRowCount, 0);
    for (std::size_t slot = 0; slot < 3; ++slot)
        image.setSlotFlags(kLogRows, slot, format::dataPage::kDeleted);
    EXPECT_EQ(count(image), 0U);
}

TEST(RowCount, OfATableWithoutPagesIsZero) {
    test::Image image = test::smallDatabase();
    image.putU32(kLogDefinition, format::definition::kRowCount, 0);
    image.putU32(kLogDefinition, format::definition::kOwnedMap, RowPointer{test::kMapPage, 5}.stored());
    EXPECT_EQ(count(image), 0U);
}

TEST(RowCount, CountsAMovedRowOnce) {
    test::Image image = test::smallDatabase();
    image.setSlotFlags(kLogRows, 0, format::dataPage::kPointer);
    image.setSlotFlags(kLogRows, 1, format::dataPage::kRelocated);
    test::SourceOf source(image);
    EXPECT_EQ(countLiveRows(source.pages, TableHead::read(source.pages, kLogDefinition), "Log"), 2U);
}

TEST(RowCount, RejectsAForeignPageInsteadOfCountingIt) {
    test::Image image = test::smallDatabase();
    image.putU32(kLogDefinition, format::definition::kRowCount, 0);
    image.putU32(kLogRows, format::page::kOwner, 2);
    EXPECT_THAT(test::failureOf([&] { count(image); }), testing::HasSubstr("belongs to another table"));
}

} // namespace
} // namespace jet
