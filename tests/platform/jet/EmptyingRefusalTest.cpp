// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Tables and databases that are not emptied, and stay as they are.

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/TableEmptier.h"
#include "platform/jet/TableWriter.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/StoredDefinition.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

using namespace test;

TEST(TableEmptier, RefusesTheParentOfARelationship) {
    share::MemoryFile file(callLogDatabase(5));
    const TableDefinition log = definitionOf(file, kLog);
    FileImage image = file.bytes();
    // The blocks of logical indexes follow those of the real ones.
    const std::size_t block =
        log.page() * format::page::kSize + log.realIndexes.back().definitionOffset + format::realIndex::kSize;
    ByteEditor bytes(image);
    bytes.put8(block + format::logicalIndex::kType, format::logicalIndex::kForeignKey);
    bytes.put8(block + format::logicalIndex::kRole, format::logicalIndex::kParent);
    share::MemoryFile related(image);
    EXPECT_EQ(basic::errorOf([&] { TableEmptier(related, kLog); }), basic::kProviderFailure);
    EXPECT_EQ(related.bytes(), image);
    bytes.put8(block + format::logicalIndex::kRole, format::logicalIndex::kChild);
    share::MemoryFile child(image);
    EXPECT_NO_THROW(emptyLog(child));
}

TEST(TableEmptier, RefusesSystemTablesAndUnknownOnes) {
    share::MemoryFile file(callLogDatabase(1));
    EXPECT_EQ(basic::errorOf([&] { TableEmptier(file, "MSysObjects"); }), basic::kProviderReadOnly);
    EXPECT_EQ(basic::errorOf([&] { TableEmptier(file, "Nothing"); }), basic::kProviderNoTable);
}

TEST(TableEmptier, RefusesAnEncodedDatabase) {
    FileImage image = callLogDatabase(1);
    image[format::header::kDatabaseKey] ^= std::byte{1}; // of what is masked there
    share::MemoryFile file(image);
    EXPECT_EQ(basic::errorOf([&] { TableEmptier(file, kLog); }), basic::kProviderReadOnly);
    EXPECT_EQ(file.bytes(), image);
}

class RefusedCommitWord : public testing::TestWithParam<std::uint8_t> {};

TEST_P(RefusedCommitWord, KeepsTheDatabaseAsItIs) {
    share::MemoryFile whole(callLogDatabase(1));
    FileImage image = whole.bytes();
    ByteEditor(image).put16(format::commitWords::kOffset + 14, GetParam());
    share::MemoryFile file(image);
    EXPECT_EQ(basic::errorOf([&] { TableEmptier(file, kLog); }), basic::kProviderFailure);
}

INSTANTIATE_TEST_SUITE_P(Words, RefusedCommitWord,
                         testing::Values(format::commitWords::kWriting, format::commitWords::kDamaged));

// Freeing pages of such a list would give one of them two users.
class DamagedTable : public ::testing::Test {
protected:
    PageNumber firstPageOf(RowPointer map) {
        PageReader pages(m_file, 0);
        return UsageMap::read(pages, map).pages().front();
    }
    void listAsData(PageNumber page) { listAsData(m_log.ownedMap, page); }
    void listAsData(RowPointer map, PageNumber page) {
        WriteCache cache(m_file);
        PageAllocator allocator(cache);
        UsageMapWriter(cache, allocator, map).add(page);
        cache.flush();
    }
    void markFree(PageNumber page) {
        WriteCache cache(m_file);
        PageAllocator(cache).release(page);
        cache.flush();
    }
    void expectRefused() {
        const FileImage before = m_file.bytes();
        EXPECT_EQ(basic::errorOf([&] { TableEmptier(m_file, kLog); }), basic::kProviderFailure);
        EXPECT_EQ(m_file.bytes(), before);
    }
    // When it comes to taking new pages.
    void expectNotEmptied() {
        const FileImage before = m_file.bytes();
        EXPECT_EQ(basic::errorOf([&] { emptyLog(m_file); }), basic::kProviderFailure);
        EXPECT_EQ(m_file.bytes(), before);
    }
    // The page with the bits of its long values.
    PageNumber becomeLeastMap() {
        m_file.write(0, leastMapDatabase(5));
        m_log = definitionOf(m_file, kLog);
        PageReader pages(m_file, 0);
        return UsageMap::read(pages, m_log.longValueMaps.back().owned).bitmapPages().front();
    }

    share::MemoryFile m_file{callLogDatabase(5)};
    TableDefinition m_log = definitionOf(m_file, kLog);
};

TEST_F(DamagedTable, IsRefusedWhenItListsAPageOfAnotherTable) {
    listAsData(firstPageOf(definitionOf(m_file, "MailboxInfo").ownedMap));
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenItListsItsOwnDefinition) {
    listAsData(m_log.page());
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenItListsAPageTwice) {
    listAsData(m_log.realIndexes.front().root);
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenItsPageIsMarkedFree) {
    markFree(firstPageOf(m_log.ownedMap));
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenItsDefinitionIsMarkedFree) {
    markFree(m_log.page());
    expectNotEmptied();
}

// All of its maps are on it, and those of the long values stay there.
TEST_F(DamagedTable, IsRefusedWhenItListsThePageOfItsMaps) {
    listAsData(m_log.ownedMap.page);
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenThePageOfItsMapsIsMarkedFree) {
    markFree(m_log.ownedMap.page);
    expectNotEmptied();
}

TEST_F(DamagedTable, IsRefusedWhenItListsABitmapPageOfItsLongValues) {
    listAsData(becomeLeastMap());
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenABitmapPageOfItsLongValuesIsMarkedFree) {
    markFree(becomeLeastMap());
    expectNotEmptied();
}

TEST_F(DamagedTable, IsRefusedWhenAnotherTableListsItsDefinition) {
    listAsData(definitionOf(m_file, "MailboxInfo").ownedMap, m_log.page());
    expectRefused();
}

TEST_F(DamagedTable, IsRefusedWhenAnotherTableListsABitmapPageOfItsLongValues) {
    const PageNumber bitmap = becomeLeastMap();
    listAsData(definitionOf(m_file, "MailboxInfo").ownedMap, bitmap);
    expectRefused();
}

TEST(TableEmptier, RefusesToTakeAPageThatIsWronglyMarkedFree) {
    share::MemoryFile file(refilledDatabase(20));
    PageReader pages(file, 0);
    const PageNumber used = UsageMap::read(pages, definitionOf(file, "MailboxInfo").ownedMap).pages().front();
    WriteCache cache(file);
    PageAllocator allocator(cache);
    allocator.release(used);
    cache.flush();
    const FileImage before = file.bytes();
    EXPECT_EQ(basic::errorOf([&] { emptyLog(file); }), basic::kProviderFailure);
    EXPECT_EQ(file.bytes(), before);
}

} // namespace
} // namespace jet
