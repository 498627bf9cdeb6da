// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Which pages are free when a table was emptied, and when.

#include "platform/jet/ByteEditor.h"
#include "platform/jet/DataPageAppend.h"
#include "platform/jet/TableEmptier.h"
#include "platform/jet/TableWriter.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

using namespace test;

bool isFree(share::File& file, PageNumber page) {
    PageReader pages(file, 0);
    return PageUse(pages, definitionPageOf(file, kLog)).freePages().contains(page);
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

// Nobody's row may lie anywhere; once the table is empty it is too late to find fault with that.
TEST_F(OldMapPage, StaysWithARowThatMakesNoSense) {
    const PageNumber old = page();
    WriteCache cache(m_file);
    const MutablePage bytes = cache.edit(old, WriteStage::UsageMaps);
    const std::size_t slot = appendRow(bytes, std::array<std::byte, 5>{}, {});
    ByteEditor(bytes).put16(format::dataPage::kSlots + format::dataPage::kSlotSize * slot, 0);
    cache.flush();
    emptyLog(m_file);
    EXPECT_TRUE(readRows(m_file, kLog).empty());
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

} // namespace
} // namespace jet
