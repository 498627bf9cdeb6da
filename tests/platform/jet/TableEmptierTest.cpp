// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableEmptier.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/TableWriter.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/EmptyingScenario.h"
#include "tests/platform/jet/StoredDefinition.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

using namespace test;

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
    EXPECT_EQ(basic::errorOf([&] { addCall(file, "K3"); }), basic::kProviderIntegrity);
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

TEST(TableEmptier, EmptiesTheLeastMapOfLongValues) {
    share::MemoryFile file(leastMapDatabase(5));
    ASSERT_NO_THROW(checkDatabase(file));
    emptyLog(file);
    EXPECT_TRUE(readRows(file, kLog).empty());
    EXPECT_TRUE(TableEmptier(file, kLog).isDone());
    EXPECT_NO_THROW(checkDatabase(file));
}

TEST(TableEmptier, SeesThatThereIsNothingToDo) {
    share::MemoryFile file(callLogDatabase(5));
    EXPECT_FALSE(TableEmptier(file, kLog).isDone());
    emptyLog(file);
    EXPECT_TRUE(TableEmptier(file, kLog).isDone());
    addCall(file, "one");
    EXPECT_FALSE(TableEmptier(file, kLog).isDone());
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
