// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ByteEditor.h"
#include "platform/jet/PageAllocator.h"
#include "platform/jet/PageReader.h"
#include "platform/jet/TableWriter.h"
#include "platform/jet/UsageMap.h"
#include "platform/share/MemoryFile.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace jet {
namespace {

using namespace test;
using basic::Null;
using namespace format;

TableSpec objects(const char* name) {
    return {.name = name,
            .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                        {.name = "Data", .type = ColumnType::Binary, .size = 510},
                        {.name = "Object", .type = ColumnType::Ole}},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}};
}

class LargeDatabase : public testing::Test {
protected:
    LargeDatabase() {
        createDatabase(m_file, kCreated);
        createTable(m_file, objects("A"), kCreated);
        createTable(m_file, objects("B"), kCreated);
    }
    // Each row takes a page of long values.
    void insert(const char* table, int rows, std::size_t objectSize = 4000) {
        TableWriter writer(m_file, table);
        for (int i = 0; i < rows; ++i)
            writer.insert(Values{Null{}, basic::Binary(400, static_cast<std::uint8_t>(i)),
                                 basic::Binary(objectSize, static_cast<std::uint8_t>(i))});
        writer.flush();
    }
    UsageMap freePages() {
        PageReader pages(m_file, 0);
        return UsageMap::read(pages, {usageMap::kGlobalPage, usageMap::kGlobalRow});
    }
    share::MemoryFile m_file{{}};
};

TEST_F(LargeDatabase, MapsOutgrowTheirRowsAndStayTrue) {
    EXPECT_TRUE(freePages().isInline());
    insert("A", 300);
    insert("B", 450); // beyond the 512 pages that the rows reach
    insert("A", 100);
    EXPECT_FALSE(freePages().isInline());
    EXPECT_TRUE(freePages().pages().empty());
    EXPECT_GT(m_file.size() / page::kSize, 850U);
    EXPECT_NO_THROW(checkDatabase(m_file));
    const std::vector<Values> rows = readRows(m_file, "A");
    ASSERT_EQ(rows.size(), 400U);
    for (std::size_t i = 0; i < 400; ++i)
        ASSERT_EQ(rows[i][2],
                  basic::Variant(basic::Binary(4000, static_cast<std::uint8_t>(i < 300 ? i : i - 300))));
}

TEST_F(LargeDatabase, TableMadeBehindTheReachOfAnInlineMapStartsItsMapsThere) {
    insert("A", 600);
    createTable(m_file, objects("C"), kCreated);
    insert("C", 20);
    EXPECT_EQ(readRows(m_file, "C").size(), 20U);
    EXPECT_NO_THROW(checkDatabase(m_file));
}

TEST_F(LargeDatabase, SecondBitmapPageOfTheFreePagesIsMadeWhenTheFirstIsFull) {
    // Pages of zeros up to the first bitmap's end stand for 130 MB of rows.
    insert("A", 520);
    const std::uint64_t end = std::uint64_t{usageMap::kPagesPerBitmap - 3} * page::kSize;
    m_file.write(end - page::kSize, std::vector<std::byte>(page::kSize));
    WriteCache cache(m_file);
    PageAllocator allocator(cache);
    std::vector<PageNumber> handedOut;
    while (handedOut.empty() || handedOut.back() < usageMap::kPagesPerBitmap + 5)
        handedOut.push_back(allocator.allocate());
    cache.flush();
    const UsageMap map = freePages();
    EXPECT_EQ(map.bitmapPages().size(), 2U);
    for (const PageNumber page : handedOut)
        EXPECT_FALSE(map.contains(page)) << page;
    EXPECT_TRUE(map.firstBeyondEnd().has_value()) << "the file may be extended";
}

TEST_F(LargeDatabase, FreedPagesAreUsedBeforeTheFileGrows) {
    insert("A", 50);
    const std::uint64_t size = m_file.size();
    // What stood in page 40 to 44 is given back, as emptying a table does.
    for (PageNumber page = 40; page < 45; ++page) {
        const std::uint64_t byte = page::kSize * 2 - 64 + page / 8;
        std::array<std::byte, 1> bits{};
        m_file.read(byte, bits);
        bits[0] |= std::byte{1} << page % 8;
        m_file.write(byte, bits);
    }
    WriteCache cache(m_file);
    PageAllocator allocator(cache);
    for (const PageNumber expected : {40U, 41U, 42U, 43U, 44U})
        EXPECT_EQ(allocator.allocate(), expected);
    EXPECT_EQ(allocator.allocate(), size / page::kSize);
}

TEST_F(LargeDatabase, RowTooLongForAPageIsRefusedAndShortObjectsLeaveALongRow) {
    TableSpec spec{.name = "Long", .columns = {}, .indexes = {}};
    for (int i = 0; i < 60; ++i)
        spec.columns.push_back({.name = "M" + std::to_string(i), .type = ColumnType::Memo});
    for (int i = 0; i < 3; ++i)
        spec.columns.push_back({.name = "B" + std::to_string(i), .type = ColumnType::Binary, .size = 510});
    for (int i = 0; i < 4; ++i)
        spec.columns.push_back({.name = "T" + std::to_string(i), .type = ColumnType::Text, .size = 255});
    createTable(m_file, spec, kCreated);
    Values row(
        60, std::string("thirty characters of a memo...")); // 60 bytes each, kept in the row if there is room
    row.resize(63, basic::Binary(510, 1));
    row.resize(67, std::string());
    TableWriter writer(m_file, "Long");
    writer.insert(row);
    row[63] = row[64] = row[65] = row[66] = std::string(255, 'x');
    EXPECT_EQ(basic::errorOf([&] { writer.insert(row); }), basic::kProviderFailure);
    writer.flush();
    row[63] = row[64] = row[65] = row[66] = std::string();
    EXPECT_EQ(readRows(m_file, "Long"), std::vector<Values>{row});
    EXPECT_NO_THROW(checkDatabase(m_file));
}

TEST_F(LargeDatabase, FileThatIsCutShortIsNotWritten) {
    std::vector<std::byte> bytes = m_file.bytes();
    bytes.resize(bytes.size() - 100);
    share::MemoryFile cut(bytes);
    EXPECT_EQ(basic::errorOf([&] { TableWriter(cut, "A"); }), basic::kProviderFailure);
    EXPECT_EQ(cut.bytes(), bytes);
}

// What a writer leaves that died while it added a page.
TEST_F(LargeDatabase, PartOfAPageBehindTheLastOneIsWrittenOver) {
    const std::uint64_t size = m_file.size();
    m_file.write(size, std::vector<std::byte>(100, std::byte{0xEE}));
    TableWriter writer(m_file, "A");
    writer.insert(Values(writer.definition().columns.size()));
    writer.flush();
    EXPECT_GE(m_file.size(), size + format::page::kSize);
    EXPECT_EQ(m_file.size() % format::page::kSize, 0U);
    EXPECT_NO_THROW(checkDatabase(m_file));
}

} // namespace
} // namespace jet
