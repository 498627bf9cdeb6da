// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Database.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/MemoryFile.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

class DatabaseWithHint : public testing::Test {
protected:
    // Counts Log and notes how many pages were read, opening included.
    std::uint32_t count(const test::Image& of, CatalogHint* hint = nullptr) {
        auto file = std::make_unique<test::MemoryFile>(of.bytes);
        test::MemoryFile& seen = *file;
        Database database(std::move(file));
        const std::uint32_t rows = database.count("Log", hint);
        reads = seen.reads.size();
        return rows;
    }
    CatalogHint filled() {
        CatalogHint hint;
        count(image, &hint);
        return hint;
    }

    test::Image image = test::smallDatabase();
    std::size_t reads = 0;
};

TEST_F(DatabaseWithHint, ColdCountReadsFivePages) {
    EXPECT_EQ(count(image), 3U);
    EXPECT_EQ(reads, 5U); // header, catalog's definition, its map and rows, the table's definition
}

TEST_F(DatabaseWithHint, CountWithAHintReadsThreePages) {
    CatalogHint hint = filled();
    EXPECT_EQ(count(image, &hint), 3U);
    EXPECT_EQ(reads, 3U);
}

TEST_F(DatabaseWithHint, CountOfAnEmptyTableWithAHintReadsFourPages) {
    CatalogHint hint = filled();
    image.putU32(test::kLogDefinition, format::definition::kRowCount, 0);
    image.putU32(test::kLogDefinition, format::definition::kOwnedMap, RowPointer{test::kMapPage, 5}.stored());
    EXPECT_EQ(count(image, &hint), 0U);
    EXPECT_EQ(reads, 4U);
}

TEST_F(DatabaseWithHint, HintOfACompactedDatabaseIsNotBelieved) {
    CatalogHint hint = filled();
    hint.creationStamp ^= 1U;
    EXPECT_EQ(count(image, &hint), 3U);
    EXPECT_EQ(reads, 5U);
    EXPECT_EQ(count(image, &hint), 3U);
    EXPECT_EQ(reads, 3U); // filled anew
}

TEST_F(DatabaseWithHint, TableCreatedAnewUnderItsNameIsFound) {
    CatalogHint hint = filled();
    // The old one was renamed; its definition is still there.
    image.putRows(test::kCatalogPage, format::catalog::kDefinitionPage,
                  {test::catalogRow(0x0F000001, 0x0F000000, "Tables", 3, 0x80000000),
                   test::catalogRow(8, 0x0F000001, "Log", 1, 0),
                   test::catalogRow(test::kLogDefinition, 0x0F000001, "Old", 1, 0)});
    image.putDefinition(8, format::definition::kUserTable, 12, {3, 2}, {3, 3}, test::logColumns());
    EXPECT_EQ(count(image, &hint), 12U);
}

TEST_F(DatabaseWithHint, HintToARowThatIsGoneIsNotBelieved) {
    const CatalogHint hint = filled();
    const auto expectColdButRight = [&](const test::Image& changed) {
        CatalogHint copy = hint;
        EXPECT_EQ(count(changed, &copy), 3U);
        EXPECT_GT(reads, 4U);
    };
    test::Image deleted = image;
    deleted.putRows(test::kCatalogPage, format::catalog::kDefinitionPage,
                    {test::catalogRow(test::kLogDefinition, 0x0F000001, "Log", 1, 0), {}, {}});
    deleted.setSlotFlags(test::kCatalogPage, 1, format::dataPage::kDeleted);
    deleted.setSlotFlags(test::kCatalogPage, 2, format::dataPage::kDeleted);
    expectColdButRight(deleted);
    test::Image fewer = deleted;
    fewer.putU16(test::kCatalogPage, format::dataPage::kSlotCount, 1);
    expectColdButRight(fewer);
    test::Image elsewhere = image;
    elsewhere.put(8, 0, {image.page(test::kCatalogPage).begin(), image.page(test::kCatalogPage).end()});
    elsewhere.putRows(
        test::kMapPage, 0,
        {test::inlineMap({8}), test::inlineMap({}), test::inlineMap({test::kLogRows}), test::inlineMap({})});
    elsewhere.put(test::kCatalogPage, 0, test::Bytes(4096));
    expectColdButRight(elsewhere);
    CatalogHint wild = hint;
    wild.entry.row.page = 0xFFFFFF;
    EXPECT_EQ(count(image, &wild), 3U);
}

TEST_F(DatabaseWithHint, HintOfAnotherTableIsNotBelieved) {
    Database database(std::make_unique<test::MemoryFile>(image.bytes));
    CatalogHint hint;
    EXPECT_EQ(database.findTable("MSysObjects", &hint).definitionPage(), 2U);
    EXPECT_EQ(database.findTable("Log", &hint).definitionPage(), test::kLogDefinition);
    EXPECT_EQ(database.definition("log", &hint).columns.size(), 5U);
}

TEST_F(DatabaseWithHint, DefinitionPageThatWasFreedIsAnError) {
    CatalogHint hint = filled();
    image.putU8(test::kLogDefinition, 0, format::page::kFreedDefinition);
    EXPECT_THAT(test::failureOf([&] { count(image, &hint); }),
                HasSubstr("table Log, page 5: a table definition is expected, the type is 8"));
}

TEST(Database, RefusesAtOpeningWhatItCannotRead) {
    EXPECT_THAT(test::failureOf([] { Database(std::make_unique<test::MemoryFile>(test::Bytes{})); }),
                HasSubstr("the file is empty"));
}

} // namespace
} // namespace jet
