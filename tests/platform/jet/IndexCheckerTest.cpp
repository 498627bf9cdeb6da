// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexChecker.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/IndexOfThreeLeaves.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace jet {
namespace {

using test::kLeft;
using test::kMiddle;
using test::kRight;
using test::kRoot;
using test::leafEntry;
using test::nodeEntry;
using testing::HasSubstr;

class IndexCheckerOfThreeLeaves : public test::IndexOfThreeLeaves {
protected:
    IndexCheckerOfThreeLeaves() {
        index.columns = {{0, true}};
        for (std::uint8_t row = 0; row < 6; ++row)
            rows.push_back({6, row});
        setMap({kRoot, kLeft, kMiddle, kRight});
    }
    void setMap(std::initializer_list<PageNumber> pages) { image.putRows(1, 0, {test::inlineMap(pages)}); }
    std::size_t check() {
        putPages();
        test::SourceOf source(image);
        IndexChecker checker(source.pages, definition, "Log", rows);
        return checker.check(index, UsageMap::read(source.pages, {1, 0}));
    }
    std::string complaint() {
        return test::failureOf([this] { check(); });
    }

    std::vector<RowPointer> rows;
};

TEST_F(IndexCheckerOfThreeLeaves, AcceptsASoundTree) {
    EXPECT_EQ(check(), 6U);
}

TEST_F(IndexCheckerOfThreeLeaves, AcceptsAnEmptyRoot) {
    root = {};
    rows.clear();
    EXPECT_EQ(check(), 0U);
}

TEST_F(IndexCheckerOfThreeLeaves, NamesEntriesOutOfOrder) {
    std::ranges::swap(middle.entries[0], middle.entries[1]);
    EXPECT_THAT(complaint(), HasSubstr("page 10: the index entries are out of order at row 2 of page 6"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesLeavesOutOfOrder) {
    right.entries[0] = leafEntry(40, {6, 2});
    EXPECT_THAT(complaint(), HasSubstr("page 11: the index entries are out of order"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesANodeEntryThatIsNotItsChildsLast) {
    root.entries[1] = nodeEntry(41, {6, 3}, kMiddle);
    EXPECT_THAT(complaint(), HasSubstr("page 8: the node's entry is not the last of its child 10"));
    root.entries[1] = nodeEntry(40, {6, 2}, kMiddle);
    EXPECT_THAT(complaint(), HasSubstr("not the last of its child 10"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesABrokenLeafChain) {
    left.next = kRight;
    EXPECT_THAT(complaint(), HasSubstr("page 9: the leaf is linked to 0 and 11 instead of 0 and 10"));
    left.next = kMiddle;
    right.previous = kLeft;
    EXPECT_THAT(complaint(), HasSubstr("page 11: the leaf is linked to 9 and 0 instead of 10 and 0"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesALoop) {
    root.tail = kLeft;
    EXPECT_THAT(complaint(), HasSubstr("page 9: the index reaches the page twice"));
    root.tail = kRoot;
    EXPECT_THAT(complaint(), HasSubstr("page 8: the index reaches the page twice"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesAPageMissingInTheMap) {
    setMap({kRoot, kLeft, kRight});
    EXPECT_THAT(complaint(), HasSubstr("page 10: the page is missing in the index's usage map"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesAForeignPage) {
    middle.owner = 2;
    EXPECT_THAT(complaint(), HasSubstr("page 10: the index page belongs to 2"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesAnEntryOfARowThatIsGone) {
    rows.erase(rows.begin() + 3);
    EXPECT_THAT(complaint(), HasSubstr("page 10: the index refers to row 3 of page 6, which is not there"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesARowWithoutAnEntry) {
    rows.push_back({7, 0});
    EXPECT_THAT(complaint(), HasSubstr("the index has 6 entries for 7 rows"));
    index.flags = format::realIndex::kIgnoreNulls;
    EXPECT_EQ(check(), 6U);
}

TEST_F(IndexCheckerOfThreeLeaves, NamesARowWithTwoEntries) {
    right.entries[1] = leafEntry(60, {6, 0});
    EXPECT_THAT(complaint(), HasSubstr("the index names a row twice"));
}

TEST_F(IndexCheckerOfThreeLeaves, NamesAKeyTwiceInAUniqueIndexOnly) {
    right.entries[1] = leafEntry(50, {6, 5});
    EXPECT_EQ(check(), 6U);
    index.flags = format::realIndex::kUnique;
    EXPECT_THAT(complaint(), HasSubstr("page 11: the unique index holds a key twice"));
}

TEST_F(IndexCheckerOfThreeLeaves, NullMayRepeatInAUniqueIndex) {
    index.flags = format::realIndex::kUnique;
    left.entries = {test::fromHex("00 00 00 06 00"), test::fromHex("00 00 00 06 01")};
    root.entries[0] = test::fromHex("00 00 00 06 01 00 00 00 09");
    EXPECT_EQ(check(), 6U);
}

TEST_F(IndexCheckerOfThreeLeaves, NamesWrongFreeBytes) {
    damage = [this] { image.putU16(kMiddle, format::page::kFreeBytes, 3616); };
    EXPECT_THAT(complaint(), HasSubstr("page 10: the free bytes are not what the entries leave"));
}

TEST_F(IndexCheckerOfThreeLeaves, RefusesATreeThatIsTooDeep) {
    image = test::Image(40);
    image.putRows(1, 0, {[] {
                      test::Bytes map(69);
                      std::fill(map.begin() + 5, map.end(), std::byte{0xFF});
                      return map;
                  }()});
    root.entries.clear();
    root.tail = 12;
    damage = [this] {
        for (PageNumber page = 12; page < 39; ++page)
            test::putIndexPage(image, page, {.isLeaf = false, .tail = page + 1});
    };
    EXPECT_THAT(complaint(), HasSubstr("too many levels"));
}

} // namespace
} // namespace jet
