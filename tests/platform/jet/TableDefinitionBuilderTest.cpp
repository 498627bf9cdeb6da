// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableDefinitionBuilder.h"

#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace jet {
namespace {

using namespace test;
using testing::HasSubstr;

TableSpec oneColumn(ColumnSpec column) {
    return {.name = "T", .columns = {std::move(column)}, .indexes = {}};
}

TableSpec withIndex(IndexSpec index) {
    TableSpec spec = oneColumn({.name = "A"});
    spec.columns.push_back({.name = "M", .type = ColumnType::Memo});
    spec.indexes.push_back(std::move(index));
    return spec;
}

TEST(TableDefinitionBuilder, RefusesWhatADefinitionCannotHold) {
    std::vector<TableSpec> specs{
        {.name = "", .columns = {{.name = "A"}}, .indexes = {}},
        {.name = std::string(65, 'x'), .columns = {{.name = "A"}}, .indexes = {}},
        {.name = "T", .columns = {}, .indexes = {}},
        {.name = "T", .columns = {{.name = "A"}, {.name = "a"}}, .indexes = {}},
        {.name = "T", .columns = std::vector<ColumnSpec>(256), .indexes = {}},
        {.name = "T",
         .columns = {{.name = "A", .autonumber = true}, {.name = "B", .autonumber = true}},
         .indexes = {}},
        oneColumn({.name = ""}),
        oneColumn({.name = "A", .type = ColumnType::Text, .size = 0}),
        oneColumn({.name = "A", .type = ColumnType::Text, .size = 256}),
        oneColumn({.name = "A", .type = ColumnType::Binary, .size = 511}),
        oneColumn({.name = "A", .type = ColumnType::Numeric, .precision = 29}),
        oneColumn({.name = "A", .type = ColumnType::Numeric, .precision = 3, .scale = 4}),
        oneColumn({.name = "A", .type = ColumnType::Integer, .autonumber = true}),
        withIndex({.name = "I", .columns = {}}),
        withIndex({.name = "I", .columns = {{"B"}}}),
        withIndex({.name = "I", .columns = {{"M"}}}),
        withIndex({.name = "I", .columns = std::vector<IndexColumnSpec>(11, {"A"})}),
        withIndex({.name = "", .columns = {{"A"}}})};
    for (std::size_t i = 0; i < specs.size(); ++i)
        EXPECT_EQ(basic::errorOf([&] { defineTable(specs[i]); }), basic::kProviderSyntax) << i;
}

TEST(TableDefinitionBuilder, RefusesTwoIndexesOfOneNameAndTwoPrimaryKeys) {
    TableSpec spec = withIndex({.name = "I", .columns = {{"A"}}});
    spec.indexes.push_back({.name = "i", .columns = {{"A"}}});
    EXPECT_EQ(basic::errorOf([&] { defineTable(spec); }), basic::kProviderSyntax);
    spec.indexes[1] = {.name = "J", .columns = {{"A"}}, .primaryKey = true};
    spec.indexes[0].primaryKey = true;
    EXPECT_EQ(basic::errorOf([&] { defineTable(spec); }), basic::kProviderSyntax);
}

TEST(TableDefinitionBuilder, IndexFlagsAreThoseOfTheEngine) {
    TableSpec spec = withIndex({.name = "P", .columns = {{"A"}}, .primaryKey = true});
    spec.indexes.push_back({.name = "U", .columns = {{"A"}}, .unique = true});
    spec.indexes.push_back({.name = "N", .columns = {{"A", false}}, .ignoresNulls = true});
    const TableDefinition table = defineTable(spec);
    EXPECT_EQ(table.realIndexes[0].flags, 0x89);
    EXPECT_EQ(table.realIndexes[1].flags, 0x81);
    EXPECT_EQ(table.realIndexes[2].flags, 0x82);
    EXPECT_FALSE(table.realIndexes[2].columns[0].ascending);
}

TEST(CreateTable, RefusesANameThatIsThereWithoutCase) {
    WrittenDatabase database;
    database.createTable(oneColumn({.name = "A"}));
    TableSpec again = oneColumn({.name = "A"});
    again.name = "t";
    EXPECT_EQ(basic::errorOf([&] { database.createTable(again); }), basic::kProviderIntegrity);
    again.name = "msysobjects";
    EXPECT_EQ(basic::errorOf([&] { database.createTable(again); }), basic::kProviderIntegrity);
    EXPECT_EQ(database.tool("mdb-tables", "-1"), "T\n");
}

TEST(CreateTable, RefusesANameTheCatalogCannotIndex) {
    WrittenDatabase database;
    TableSpec spec = oneColumn({.name = "A"});
    spec.name = "Anrufe-Büro";
    EXPECT_EQ(basic::errorOf([&] { database.createTable(spec); }), basic::kProviderFailure);
    EXPECT_NO_THROW(checkDatabase(database.file()));
}

TEST(CreateTable, RefusesAFileThatIsNoDatabase) {
    TemporaryFolder folder;
    const auto file = share::LocalFile::open(folder.path("x"), share::OpenMode::Create);
    file->write(0, std::vector<std::byte>(3 * format::page::kSize));
    EXPECT_EQ(basic::errorOf([&] { createTable(*file, oneColumn({.name = "A"}), kCreated); }),
              basic::kProviderFailure);
    EXPECT_EQ(basic::errorOf([&] { createDatabase(*file, kCreated); }), basic::kProviderFailure);
}

class WideTable : public testing::Test {
protected:
    // Long names and many memos: a definition of several pages and more maps than fit one.
    WideTable() {
        m_spec.name = "Wide";
        for (int i = 0; i < 80; ++i)
            m_spec.columns.push_back({.name = "A rather long column name, number " + std::to_string(i),
                                      .type = i % 2 == 0 ? ColumnType::Memo : ColumnType::Double});
        for (int i = 1; i < 20; i += 2)
            m_spec.indexes.push_back({.name = "Index " + std::to_string(i),
                                      .columns = {{m_spec.columns[static_cast<std::size_t>(i)].name}}});
        m_database.createTable(m_spec);
    }
    Values row(int seed) const {
        Values values;
        for (int i = 0; i < 80; ++i)
            values.push_back(i % 2 == 0
                                 ? basic::Variant(std::string(static_cast<std::size_t>(seed * i % 150), 'm'))
                                 : basic::Variant(seed * 1.5 - i));
        return values;
    }
    TableSpec m_spec;
    WrittenDatabase m_database;
};

TEST_F(WideTable, DefinitionTakesSeveralPages) {
    const TableDefinition table = definitionOf(m_database.file(), "Wide");
    EXPECT_GT(table.pages.size(), 2U);
    ASSERT_EQ(table.columns.size(), 80U);
    for (std::size_t i = 0; i < 80; ++i)
        EXPECT_EQ(table.columns[i].name, m_spec.columns[i].name);
    ASSERT_EQ(table.longValueMaps.size(), 40U);
    EXPECT_NE(table.longValueMaps.front().owned.page, table.longValueMaps.back().owned.page);
    EXPECT_EQ(table.realIndexes.size(), 10U);
}

TEST_F(WideTable, RowsReadBackAndAreTheSameToOtherPrograms) {
    std::vector<Values> rows;
    for (int i = 0; i < 40; ++i)
        rows.push_back(row(i));
    m_database.insert("Wide", rows);
    EXPECT_EQ(m_database.rows("Wide"), rows);
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
    const std::string csv = m_database.tool("mdb-export", "-H", "Wide");
    EXPECT_EQ(std::ranges::count(csv, '\n'), 40);
    EXPECT_THAT(csv, HasSubstr("\"" + std::string(39 * 2 % 150, 'm') + "\""));
}

} // namespace
} // namespace jet
