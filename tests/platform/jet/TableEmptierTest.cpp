// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableEmptier.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/Catalog.h"
#include "platform/jet/DataPageAppend.h"
#include "platform/jet/PageReader.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/TableWriter.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/ErrorNumberOf.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

using namespace test;

PageNumber definitionPageOf(share::File& file, std::string_view table) {
    PageReader pages(file, 0);
    return Catalog(pages).find(table).definitionPage();
}

TableDefinition definitionOf(share::File& file, std::string_view table) {
    PageReader pages(file, 0);
    return TableDefinitionReader(pages).read(definitionPageOf(file, table), table);
}

std::span<const std::byte> pageOf(const FileImage& image, PageNumber page) {
    return std::span(image).subspan(page * format::page::kSize, format::page::kSize);
}

TEST(TableEmptier, LeavesAnEmptyTableAndASoundDatabase) {
    share::MemoryFile file(callLogDatabase(200));
    emptyLog(file);
    EXPECT_TRUE(readRows(file, kLog).empty());
    EXPECT_EQ(storedCount(file, kLog), 0U);
    EXPECT_NO_THROW(checkDatabase(file));
}

TEST(TableEmptier, GoesOnCountingWhereItWas) {
    share::MemoryFile file(callLogDatabase(7));
    emptyLog(file);
    addCall(file, "next");
    EXPECT_EQ(readRows(file, kLog).front()[0], basic::Variant(std::int32_t{8}));
}

TEST(TableEmptier, KeepsColumnsIndexesAndTheDefinitionsPage) {
    share::MemoryFile file(callLogDatabase(7));
    const TableDefinition before = definitionOf(file, kLog);
    emptyLog(file);
    const TableDefinition after = definitionOf(file, kLog);
    EXPECT_EQ(after.page(), before.page());
    EXPECT_EQ(after.columns.size(), before.columns.size());
    EXPECT_EQ(after.logicalIndexes.size(), before.logicalIndexes.size());
    EXPECT_EQ(after.lastAutonumber, before.lastAutonumber);
    EXPECT_EQ(after.realIndexes[0].uniqueEntries, before.realIndexes[0].uniqueEntries);
}

TEST(TableEmptier, UniqueKeysCanBeUsedAgain) {
    share::MemoryFile file(callLogDatabase(7));
    emptyLog(file);
    EXPECT_NO_THROW(addCall(file, "K3"));
    EXPECT_EQ(errorNumberOf([&] { addCall(file, "K3"); }), basic::kProviderIntegrity);
}

TEST(TableEmptier, LeavesEveryPageOfOthersByteForByte) {
    share::MemoryFile file(callLogDatabase(200));
    const FileImage before = file.bytes();
    PageReader pages(file, 0);
    const PageUse others(pages, definitionPageOf(file, kLog));
    emptyLog(file);
    std::size_t compared = 0;
    for (PageNumber page = 2; page < before.size() / format::page::kSize; ++page) {
        if (!others.isUsed(page))
            continue;
        ++compared;
        EXPECT_TRUE(std::ranges::equal(pageOf(before, page), pageOf(file.bytes(), page))) << page;
    }
    EXPECT_GT(compared, 15U);
}

TEST(TableEmptier, HeaderChangesInItsCommitWordOnly) {
    share::MemoryFile file(callLogDatabase(20));
    FileImage before = file.bytes();
    emptyLog(file);
    constexpr std::size_t kWord = format::commitWords::kOffset + 2;
    EXPECT_NE(before[kWord], file.bytes()[kWord]);
    before[kWord] = file.bytes()[kWord];
    EXPECT_TRUE(std::ranges::equal(pageOf(before, 0), pageOf(file.bytes(), 0)));
}

TEST(TableEmptier, FreedPagesAreUsedUpToTheOldSize) {
    constexpr int kCalls = 150;
    share::MemoryFile file(callLogDatabase(kCalls));
    const std::uint64_t oldSize = file.size();
    const std::size_t indexes = definitionOf(file, kLog).realIndexes.size();
    for (int round = 0; round < 5; ++round) {
        emptyLog(file);
        TableWriter writer(file, kLog);
        for (int i = 0; i < kCalls; ++i)
            writer.insert(anyRow(writer.definition(), "K" + std::to_string(i), i % 3 == 0 ? 5000 : 10));
        writer.flush();
        EXPECT_EQ(readRows(file, kLog).size(), std::size_t{kCalls});
    }
    EXPECT_NO_THROW(checkDatabase(file));
    // The old roots and maps are given back only once new ones are there; and the page with the maps of long
    // values stays beside that with the new maps.
    EXPECT_LE(file.size(), oldSize + (indexes + 2) * format::page::kSize);
}

TEST(TableEmptier, DoesNotGrowTheFileWhenRepeated) {
    share::MemoryFile file(callLogDatabase(20));
    emptyLog(file);
    const std::uint64_t size = file.size();
    for (int round = 0; round < 50; ++round)
        emptyLog(file);
    EXPECT_EQ(file.size(), size);
    EXPECT_NO_THROW(checkDatabase(file));
}

bool isFree(share::File& file, PageNumber page) {
    PageReader pages(file, 0);
    return PageUse(pages, definitionPageOf(file, kLog)).freePages().contains(page);
}

TEST(TableEmptier, FreesThePagesOfTheDefinitionThatItReplaced) {
    share::MemoryFile file(twoPageDatabase(3));
    const PageNumber old = definitionOf(file, kLog).pages.at(1);
    emptyLog(file);
    EXPECT_NE(definitionOf(file, kLog).pages.at(1), old);
    EXPECT_TRUE(isFree(file, old));
}

TEST(TableEmptier, LinksSeveralReplacedPagesOfTheDefinition) {
    share::MemoryFile file(threePageDatabase(3));
    const TableDefinition before = definitionOf(file, kLog);
    ASSERT_EQ(before.pages.size(), 3U);
    emptyLog(file);
    const TableDefinition after = definitionOf(file, kLog);
    EXPECT_EQ(after.columns.size(), before.columns.size());
    EXPECT_TRUE(TableEmptier(file, kLog).isDone());
    EXPECT_NO_THROW(checkDatabase(file));
    for (std::size_t i = 1; i < before.pages.size(); ++i)
        EXPECT_EQ(isFree(file, before.pages[i]), after.pages[i] != before.pages[i]);
    EXPECT_NE(after.pages.back(), before.pages.back());
}

// Sound databases have such entries: one of the two maps is said to be on page 0.
TEST(TableEmptier, PassesOverABrokenEntryOfLongValues) {
    share::MemoryFile file(callLogDatabase(5));
    const TableDefinition log = definitionOf(file, kLog);
    ASSERT_FALSE(log.longValueMaps.empty());
    FileImage image = file.bytes();
    const std::size_t end = ByteView(log.bytes, {}).u32(format::definition::kLength);
    constexpr std::size_t kLastPointer = 6; // before the end, behind it the mark of the list's end
    ByteEditor(image).put32(log.page() * format::page::kSize + end - kLastPointer, 0);
    share::MemoryFile broken(image);
    ASSERT_TRUE(definitionOf(broken, kLog).longValueMaps.back().isBroken());
    emptyLog(broken);
    EXPECT_TRUE(readRows(broken, kLog).empty());
    EXPECT_TRUE(TableEmptier(broken, kLog).isDone());
}

// The table's maps of rows and indexes are on a page of their own after the first delete.
class OldMapPage : public ::testing::Test {
protected:
    OldMapPage() {
        emptyLog(m_file);
        addCall(m_file, "one");
    }
    PageNumber page() { return definitionOf(m_file, kLog).ownedMap.page; }

    share::MemoryFile m_file{callLogDatabase(5)};
};

// Whoever wrote such a list did not mean this index.
TEST_F(OldMapPage, PagesOfAnIndexThatDoesNotListItsRootAreNotFreed) {
    const RealIndex index = definitionOf(m_file, kLog).realIndexes.front();
    WriteCache cache(m_file);
    PageAllocator allocator(cache);
    UsageMapWriter map(cache, allocator, index.usageMap);
    const PageNumber listed = allocator.allocate();
    map.add(listed);
    map.remove(index.root);
    cache.flush();
    emptyLog(m_file);
    EXPECT_FALSE(isFree(m_file, listed));
}

TEST_F(OldMapPage, IsFreed) {
    const PageNumber old = page();
    emptyLog(m_file);
    EXPECT_TRUE(isFree(m_file, old));
}

TEST_F(OldMapPage, StaysWithARowThatIsNotTheTables) {
    const PageNumber old = page();
    WriteCache cache(m_file);
    appendRow(cache.edit(old, WriteStage::UsageMaps), std::array<std::byte, 5>{}, {});
    cache.flush();
    emptyLog(m_file);
    EXPECT_FALSE(isFree(m_file, old));
}

TEST_F(OldMapPage, StaysWithAMapThatAnotherTableUsesToo) {
    emptyLog(m_file); // else the other table would have the pages in it as well
    const TableDefinition log = definitionOf(m_file, kLog);
    FileImage image = m_file.bytes();
    ByteEditor(image).put32(definitionPageOf(m_file, "MailboxInfo") * format::page::kSize +
                                format::definition::kFreeMap,
                            log.freeMap.stored());
    m_file.write(0, image);
    emptyLog(m_file);
    EXPECT_FALSE(isFree(m_file, log.freeMap.page));
}

TEST(TableEmptier, TellsOthersWhenTheTableIsEmptyAndItsPagesAreNotYetFree) {
    share::MemoryFile file(callLogDatabase(5));
    PageReader before(file, 0);
    const std::vector<PageNumber> old = UsageMap::read(before, definitionOf(file, kLog).ownedMap).pages();
    int told = 0;
    TableEmptier(file, kLog).run([&] {
        ++told;
        EXPECT_TRUE(readRows(file, kLog).empty());
        EXPECT_FALSE(isFree(file, old.front()));
    });
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(isFree(file, old.front()));
}

TEST(TableEmptier, SeesThatThereIsNothingToDo) {
    share::MemoryFile file(callLogDatabase(5));
    EXPECT_FALSE(TableEmptier(file, kLog).isDone());
    emptyLog(file);
    EXPECT_TRUE(TableEmptier(file, kLog).isDone());
    addCall(file, "one");
    EXPECT_FALSE(TableEmptier(file, kLog).isDone());
}

// A table without rows in which something is left over: from a delete that did not come to its end, or from
// another program.
class LeftOver : public ::testing::Test {
protected:
    LeftOver() { emptyLog(m_file); }

    // A page that is nobody's, listed in a map.
    void list(RowPointer map) {
        WriteCache cache(m_file);
        PageAllocator allocator(cache);
        const PageNumber page = allocator.allocate();
        initialiseDataPage(cache.edit(page, WriteStage::NewPage), definitionPageOf(m_file, kLog));
        UsageMapWriter(cache, allocator, map).add(page);
        cache.flush();
    }
    void put(PageNumber page, std::size_t offset, std::uint8_t value) {
        FileImage image = m_file.bytes();
        ByteEditor(image).put8(page * format::page::kSize + offset, value);
        m_file.write(0, image);
    }
    void expectCompleted() {
        EXPECT_FALSE(TableEmptier(m_file, kLog).isDone());
        emptyLog(m_file);
        EXPECT_TRUE(TableEmptier(m_file, kLog).isDone());
        EXPECT_NO_THROW(checkDatabase(m_file));
        EXPECT_EQ(storedCount(m_file, kLog), 0U);
        addCall(m_file, "K1", 5000);
        EXPECT_EQ(readRows(m_file, kLog).size(), 1U);
        EXPECT_NO_THROW(checkDatabase(m_file));
    }
    TableDefinition log() { return definitionOf(m_file, kLog); }

    share::MemoryFile m_file{callLogDatabase(5)};
};

TEST_F(LeftOver, CountIsCorrectedByTheNextDelete) {
    put(log().page(), format::definition::kRowCount, 3);
    expectCompleted();
}

TEST_F(LeftOver, DataPageIsFreedByTheNextDelete) {
    list(log().ownedMap);
    expectCompleted();
}

TEST_F(LeftOver, LongValuePageIsFreedByTheNextDelete) {
    list(log().longValueMaps.front().owned);
    expectCompleted();
}

// A map of them no longer fits in its row then.
TEST_F(LeftOver, LongValuePagesFarApartAreFreedByTheNextDelete) {
    constexpr PageNumber kFar = 700;
    FileImage image = m_file.bytes();
    image.resize(kFar * format::page::kSize);
    m_file.write(0, image);
    WriteCache cache(m_file);
    PageAllocator allocator(cache);
    UsageMapWriter map(cache, allocator, log().longValueMaps.front().owned);
    PageNumber page = allocator.allocate();
    map.add(page);
    while (page < kFar)
        page = allocator.allocate();
    map.add(page);
    cache.flush();
    expectCompleted();
}

TEST_F(LeftOver, IndexPageIsFreedByTheNextDelete) {
    list(log().realIndexes.front().usageMap);
    expectCompleted();
}

TEST_F(LeftOver, IndexEntryIsTakenOutByTheNextDelete) {
    put(log().realIndexes.front().root, format::indexPage::kEntryEnds + 2, 1);
    expectCompleted();
}

TEST_F(LeftOver, RootOfAnotherTableIsReplacedByTheNextDelete) {
    put(log().realIndexes.front().root, format::page::kOwner, 3);
    expectCompleted();
}

TEST_F(LeftOver, RootThatItsMapDoesNotListIsReplacedByTheNextDelete) {
    const RealIndex index = log().realIndexes.front();
    WriteCache cache(m_file);
    PageAllocator allocator(cache);
    UsageMapWriter(cache, allocator, index.usageMap).remove(index.root);
    cache.flush();
    expectCompleted();
}

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
    EXPECT_EQ(errorNumberOf([&] { TableEmptier(related, kLog); }), basic::kProviderFailure);
    EXPECT_EQ(related.bytes(), image);
    bytes.put8(block + format::logicalIndex::kRole, format::logicalIndex::kChild);
    share::MemoryFile child(image);
    EXPECT_NO_THROW(emptyLog(child));
}

TEST(TableEmptier, RefusesSystemTablesAndUnknownOnes) {
    share::MemoryFile file(callLogDatabase(1));
    EXPECT_EQ(errorNumberOf([&] { TableEmptier(file, "MSysObjects"); }), basic::kProviderReadOnly);
    EXPECT_EQ(errorNumberOf([&] { TableEmptier(file, "Nothing"); }), basic::kProviderNoTable);
}

TEST(TableEmptier, RefusesAnEncodedDatabase) {
    FileImage image = callLogDatabase(1);
    image[format::header::kDatabaseKey] ^= std::byte{1}; // of what is masked there
    share::MemoryFile file(image);
    EXPECT_EQ(errorNumberOf([&] { TableEmptier(file, kLog); }), basic::kProviderReadOnly);
    EXPECT_EQ(file.bytes(), image);
}

class RefusedCommitWord : public testing::TestWithParam<std::uint8_t> {};

TEST_P(RefusedCommitWord, KeepsTheDatabaseAsItIs) {
    share::MemoryFile whole(callLogDatabase(1));
    FileImage image = whole.bytes();
    ByteEditor(image).put16(format::commitWords::kOffset + 14, GetParam());
    share::MemoryFile file(image);
    EXPECT_EQ(errorNumberOf([&] { TableEmptier(file, kLog); }), basic::kProviderFailure);
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
    void listAsData(PageNumber page) {
        WriteCache cache(m_file);
        PageAllocator allocator(cache);
        UsageMapWriter(cache, allocator, m_log.ownedMap).add(page);
        cache.flush();
    }
    void markFree(PageNumber page) {
        WriteCache cache(m_file);
        PageAllocator(cache).release(page);
        cache.flush();
    }
    void expectRefused() {
        const FileImage before = m_file.bytes();
        EXPECT_EQ(errorNumberOf([&] { TableEmptier(m_file, kLog); }), basic::kProviderFailure);
        EXPECT_EQ(m_file.bytes(), before);
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
    const FileImage before = m_file.bytes();
    EXPECT_EQ(errorNumberOf([&] { emptyLog(m_file); }), basic::kProviderFailure);
    EXPECT_EQ(m_file.bytes(), before);
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
    EXPECT_EQ(errorNumberOf([&] { emptyLog(file); }), basic::kProviderFailure);
    EXPECT_EQ(file.bytes(), before);
}

TEST(TableEmptier, PublicToolsReadAnEmptyTableAndTheOtherOneAsBefore) {
    WrittenDatabase database;
    share::MemoryFile memory(callLogDatabase(200));
    database.file().write(0, memory.bytes());
    const std::string info = database.json("MailboxInfo");
    ASSERT_EQ(database.tool("mdb-count", "", "CallLog"), "200\n");
    emptyLog(database.file());
    EXPECT_EQ(database.tool("mdb-count", "", "CallLog"), "0\n");
    EXPECT_EQ(database.json("CallLog"), "");
    EXPECT_EQ(database.json("MailboxInfo"), info);
    EXPECT_NE(info, "");
    addCall(database.file(), "again", 5000);
    EXPECT_NE(database.json("CallLog").find("again"), std::string::npos);
}

} // namespace
} // namespace jet
