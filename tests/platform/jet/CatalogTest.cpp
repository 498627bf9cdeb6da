// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Catalog.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::uint32_t kTables = 0x0F000001;

test::Image withObjects() {
    test::Image image = test::smallDatabase();
    image.putRows(test::kCatalogPage, format::catalog::kDefinitionPage,
                  {test::catalogRow(2, kTables, "MSysObjects", 1, 0x80000000),
                   test::catalogRow(0x80000005, kTables, "Log", 5, 0), // a query of the same name
                   test::catalogRow(44, 0x0F000002, "Log", 1, 0),      // in another container
                   test::catalogRow(test::kLogDefinition, kTables, "Log", 1, 0),
                   test::catalogRow(0x80000006, kTables, "Far", 6, 0x200000),
                   test::catalogRow(0x80000007, kTables, "Farther", 4, 0x100000)});
    return image;
}

std::vector<std::string> names(const std::vector<CatalogEntry>& entries) {
    std::vector<std::string> result;
    for (const CatalogEntry& entry : entries)
        result.push_back(entry.name);
    return result;
}

TEST(Catalog, FindsATableWithoutCase) {
    test::SourceOf source(withObjects());
    const CatalogEntry entry = Catalog(source.pages).find("lOG");
    EXPECT_EQ(entry.name, "Log");
    EXPECT_EQ(entry.definitionPage(), test::kLogDefinition);
    EXPECT_EQ(entry.row, (RowPointer{test::kCatalogPage, 3}));
    EXPECT_FALSE(entry.isSystem());
}

TEST(Catalog, UnknownTableHasTheProvidersNumber) {
    test::SourceOf source(withObjects());
    try {
        Catalog(source.pages).find("Logs");
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kProviderNoTable);
        EXPECT_THAT(error.description(), HasSubstr("Logs"));
    }
}

TEST(Catalog, RefusesLinkedTablesByName) {
    test::SourceOf source(withObjects());
    EXPECT_THAT(test::failureOf([&] { Catalog(source.pages).find("far"); }),
                HasSubstr("the linked table Far is not supported"));
    EXPECT_THAT(test::failureOf([&] { Catalog(source.pages).find("Farther"); }), HasSubstr("not supported"));
}

TEST(Catalog, ListsTablesWithAndWithoutTheSystems) {
    test::SourceOf source(withObjects());
    EXPECT_THAT(names(Catalog(source.pages).tables()), ElementsAre("MSysObjects", "Log"));
    EXPECT_THAT(names(Catalog(source.pages).userTables()), ElementsAre("Log"));
}

TEST(Catalog, RefusesACatalogWithoutItsColumns) {
    test::Image image = withObjects();
    std::vector<Column> columns = test::catalogColumns();
    columns[2].name = "Nome";
    image.putDefinition(2, format::definition::kSystemTable, 3, {3, 0}, {3, 1}, columns);
    test::SourceOf source(image);
    EXPECT_THAT(test::failureOf([&] { const Catalog catalog(source.pages); }),
                HasSubstr("page 2: the catalog has no column Name"));
    columns = test::catalogColumns();
    columns[0].type = ColumnType::Text;
    image.putDefinition(2, format::definition::kSystemTable, 3, {3, 0}, {3, 1}, columns);
    test::SourceOf wrongType(image);
    EXPECT_THAT(test::failureOf([&] { const Catalog catalog(wrongType.pages); }), HasSubstr("no column Id"));
}

} // namespace
} // namespace jet
