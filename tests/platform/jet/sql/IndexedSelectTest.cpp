// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Rows found by way of an index, and what happens where the index is no help.
#include "platform/jet/Database.h"
#include "platform/jet/DatabaseBuilder.h"
#include "platform/jet/TableWriter.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/jet/sql/SqlTest.h"

namespace jet::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kRows = 3000;
constexpr basic::Date kMadeOn{45000};

enum class Index { None, Unique, Descending, TwoColumns };

class IndexedSelect : public ::testing::Test {
protected:
    void build(Index kind, const std::vector<std::string>& more = {}) {
        share::MemoryFile file({});
        createDatabase(file, kMadeOn);
        createTable(file, spec(kind), kMadeOn);
        TableWriter writer(file, "CallLog");
        const auto add = [&writer](const std::string& callID) {
            writer.insert(std::vector<basic::Variant>{basic::Null{}, callID, std::string(200, 'x')});
        };
        for (int i = 1; i <= kRows; ++i)
            add("C" + std::to_string(i));
        for (const std::string& callID : more)
            add(callID);
        writer.flush();
        m_files.bytes = file.bytes();
        m_connection.Open(kConnectionString);
    }
    std::vector<std::string> ids(const std::string& condition) {
        m_files.bytesRead = 0;
        std::vector<std::string> found;
        const auto rows = m_connection.Execute("SELECT ID FROM CallLog WHERE " + condition);
        for (; !rows->eof(); rows->MoveNext())
            found.push_back(std::to_string(std::get<std::int32_t>(rows->Field(0))));
        return found;
    }
    std::size_t pagesRead() const { return m_files.bytesRead / format::page::kSize; }
    // The whole table was not read.
    bool tookTheIndex() const { return pagesRead() < 20; }

    TableDefinition definition() {
        Database database(std::make_unique<share::MemoryFile>(m_files.bytes));
        return database.definition("CallLog");
    }
    std::byte& byteOf(PageNumber page, std::size_t offset) {
        return m_files.bytes[std::size_t{page} * format::page::kSize + offset];
    }
    PageNumber rootOfCallID() {
        const TableDefinition table = definition();
        for (const RealIndex& index : table.realIndexes)
            if (index.columns.front().number == table.findColumn("CallID")->number)
                return index.root;
        return 0;
    }

    MemoryFileSystem m_files;
    Engine m_engine{m_files, [](int) {}};
    Connection m_connection{m_engine};

private:
    static TableSpec spec(Index kind) {
        TableSpec table{
            .name = "CallLog",
            .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                        {.name = "CallID", .type = ColumnType::Text, .size = 50, .compressed = true},
                        {.name = "Filling", .type = ColumnType::Text, .size = 255}},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}};
        if (kind == Index::Unique)
            table.indexes.push_back({.name = "CallID", .columns = {{"CallID"}}, .unique = true});
        if (kind == Index::Descending)
            table.indexes.push_back({.name = "CallID", .columns = {{"CallID", false}}});
        if (kind == Index::TwoColumns)
            table.indexes.push_back({.name = "CallID", .columns = {{"CallID"}, {"ID"}}});
        return table;
    }
};

TEST_F(IndexedSelect, ReadsAFewPagesForTheRowOfACall) {
    build(Index::Unique);
    for (const int number : {1, 2, 777, kRows - 1, kRows}) {
        EXPECT_THAT(ids("CallID='C" + std::to_string(number) + "'"), ElementsAre(std::to_string(number)));
        EXPECT_TRUE(tookTheIndex()) << number << ": " << pagesRead();
    }
}

TEST_F(IndexedSelect, TakesTheLiteralOnEitherSideAndWithoutCaseOrBlanksAtItsEnd) {
    build(Index::Unique);
    EXPECT_THAT(ids("'C12'=CallID"), ElementsAre("12"));
    EXPECT_TRUE(tookTheIndex());
    EXPECT_THAT(ids("CallID='c12'"), ElementsAre("12"));
    EXPECT_TRUE(tookTheIndex());
}

TEST_F(IndexedSelect, ReadsDescendingAndLongerIndexesAsWell) {
    for (const Index kind : {Index::Descending, Index::TwoColumns}) {
        m_connection.State() != 0 ? m_connection.Close() : void();
        build(kind);
        EXPECT_THAT(ids("CallID='C2999'"), ElementsAre("2999"));
        EXPECT_TRUE(tookTheIndex());
    }
}

TEST_F(IndexedSelect, FindsEveryRowOfAKeyThatStandsManyTimes) {
    build(Index::Descending, std::vector<std::string>(900, "same"));
    const auto found = ids("CallID='same'");
    ASSERT_EQ(found.size(), 900U);
    EXPECT_EQ(found.front(), std::to_string(kRows + 1));
    EXPECT_EQ(found.back(), std::to_string(kRows + 900));
}

TEST_F(IndexedSelect, KeepsTheOrderThatIsAskedFor) {
    build(Index::Descending, {"same", "same"});
    EXPECT_THAT(ids("CallID='same' ORDER BY ID DESC"),
                ElementsAre(std::to_string(kRows + 2), std::to_string(kRows + 1)));
}

TEST_F(IndexedSelect, ScansForATextWhoseKeyIsNotKnown) {
    build(Index::Unique);
    for (const char* callID : {"-1", "C-1", "Ä"}) {
        EXPECT_THAT(ids("CallID='" + std::string(callID) + "'"), IsEmpty());
        EXPECT_FALSE(tookTheIndex()) << callID;
    }
}

TEST_F(IndexedSelect, ScansWithoutAnIndex) {
    build(Index::None);
    EXPECT_THAT(ids("CallID='C12'"), ElementsAre("12"));
    EXPECT_FALSE(tookTheIndex());
}

TEST_F(IndexedSelect, ScansForAKeyThatTheIndexDoesNotHave) {
    build(Index::Unique);
    EXPECT_THAT(ids("CallID='nobody'"), IsEmpty());
    EXPECT_FALSE(tookTheIndex());
}

TEST_F(IndexedSelect, ScansForOtherConditions) {
    build(Index::Unique);
    EXPECT_THAT(ids("CallID='C12' OR ID=14"), ElementsAre("12", "14"));
    EXPECT_THAT(ids("NOT CallID<>'C12'"), ElementsAre("12"));
    EXPECT_THAT(ids("CallID=Filling"), IsEmpty());
}

TEST_F(IndexedSelect, DamagedRootDoesNotHideARow) {
    build(Index::Unique);
    const PageNumber root = rootOfCallID();
    for (const std::size_t offset : {format::page::kType, format::page::kOwner, format::indexPage::kTail}) {
        const std::vector<std::byte> sound = m_files.bytes;
        byteOf(root, offset) = std::byte{0x77};
        EXPECT_THAT(ids("CallID='C3000'"), ElementsAre("3000")) << offset;
        EXPECT_THAT(ids("CallID='C1'"), ElementsAre("1")) << offset;
        m_files.bytes = sound;
    }
}

TEST_F(IndexedSelect, EntriesThatPointElsewhereDoNotHideARow) {
    build(Index::Unique);
    const PageNumber root = rootOfCallID();
    std::size_t wrong = 0;
    for (std::size_t offset = format::indexPage::kEntries; offset < format::indexPage::kEntries + 200;
         ++offset) {
        const std::byte before = byteOf(root, offset);
        byteOf(root, offset) = before ^ std::byte{0xFF};
        wrong += ids("CallID='C1'") == std::vector<std::string>{"1"} ? 0U : 1U;
        byteOf(root, offset) = before;
    }
    EXPECT_EQ(wrong, 0U);
}

TEST_F(IndexedSelect, LeavesThatRunInACircleEnd) {
    build(Index::Descending, std::vector<std::string>(900, "same"));
    const TableDefinition table = definition();
    for (PageNumber page = 1; page < m_files.bytes.size() / format::page::kSize; ++page)
        if (byteOf(page, 0) == std::byte{format::page::kIndexLeaf})
            for (std::size_t i = 0; i < 4; ++i)
                byteOf(page, format::indexPage::kNext + i) = std::byte(page >> 8 * i & 0xFFU);
    EXPECT_EQ(ids("CallID='same'").size(), 900U);
    EXPECT_FALSE(tookTheIndex());
}

} // namespace
} // namespace jet::test
