// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
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

} // namespace
} // namespace jet
