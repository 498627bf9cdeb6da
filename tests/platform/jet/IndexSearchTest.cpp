// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexSearch.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/IndexOfThreeLeaves.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using test::kLeft;
using test::kMiddle;
using test::kPages;
using test::kRight;
using test::kRoot;
using test::leafEntry;
using test::nodeEntry;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class IndexSearchInThreeLeaves : public test::IndexOfThreeLeaves {
protected:
    std::vector<RowPointer> find(std::uint32_t key) {
        putPages();
        test::SourceOf source(image);
        return IndexSearch(source.pages, definition, "Log").find(index, keyOf(key));
    }
    std::string complaint(std::uint32_t key) {
        return test::failureOf([&] { find(key); });
    }
    static KeyBytes keyOf(std::uint32_t key) {
        KeyBytes bytes;
        for (const std::byte byte : leafEntry(key, {}))
            bytes.push_back(static_cast<char>(byte));
        bytes.resize(bytes.size() - IndexEntry::kRowSize);
        return bytes;
    }
};

TEST_F(IndexSearchInThreeLeaves, FindsTheRowOfEachKey) {
    for (std::uint8_t row = 0; row < 6; ++row)
        EXPECT_THAT(find(10U * (row + 1U)), ElementsAre(RowPointer{6, row}));
}

TEST_F(IndexSearchInThreeLeaves, FindsNothingForKeysBetweenBelowAndAboveAllThereAre) {
    for (const std::uint32_t key : {1U, 15U, 45U, 99U})
        EXPECT_THAT(find(key), IsEmpty()) << key;
}

TEST_F(IndexSearchInThreeLeaves, FindsARunOfOneKeyOverSeveralLeavesInItsOrder) {
    left.entries[1] = leafEntry(40, {6, 1});
    root.entries[0] = nodeEntry(40, {6, 1}, kLeft);
    middle.entries = {leafEntry(40, {6, 2}), leafEntry(40, {6, 3})};
    right.entries[0] = leafEntry(40, {6, 4});
    EXPECT_THAT(find(40),
                ElementsAre(RowPointer{6, 1}, RowPointer{6, 2}, RowPointer{6, 3}, RowPointer{6, 4}));
}

TEST_F(IndexSearchInThreeLeaves, FindsNothingInAnEmptyRoot) {
    root = {};
    EXPECT_THAT(find(10), IsEmpty());
}

TEST_F(IndexSearchInThreeLeaves, FindsNothingAboveANodeWithoutATail) {
    root.tail = 0;
    EXPECT_THAT(find(50), IsEmpty());
}

TEST_F(IndexSearchInThreeLeaves, RejectsARootOutsideTheFile) {
    for (const PageNumber page : {kPages, PageNumber{0xFFFFFF}, PageNumber{0xFFFFFFFF}}) {
        index.root = page;
        EXPECT_THAT(complaint(10), HasSubstr("page " + std::to_string(page)));
    }
}

TEST_F(IndexSearchInThreeLeaves, RejectsAChildOutsideTheFile) {
    root.entries[0] = nodeEntry(20, {6, 1}, kPages);
    EXPECT_THAT(complaint(10), HasSubstr("page 12"));
    root.entries[0] = nodeEntry(20, {6, 1}, 0xFFFFFFFF);
    EXPECT_THAT(complaint(10), HasSubstr("page 4294967295"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsATailAndANextLeafOutsideTheFile) {
    root.tail = kPages;
    EXPECT_THAT(complaint(50), HasSubstr("page 12"));
    middle.next = kPages + 1;
    EXPECT_THAT(complaint(40), HasSubstr("page 13"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsANodeThatLeadsToItself) {
    root.entries[0] = nodeEntry(20, {6, 1}, kRoot);
    EXPECT_THAT(complaint(10), HasSubstr("the index has too many levels"));
    root.tail = kRoot;
    EXPECT_THAT(complaint(50), HasSubstr("the index has too many levels"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsTwoNodesThatLeadToEachOther) {
    left = {.isLeaf = false, .entries = {nodeEntry(20, {6, 1}, kRoot)}};
    EXPECT_THAT(complaint(10), HasSubstr("the index has too many levels"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsALeafThatFollowsItself) {
    right.entries = {leafEntry(50, {6, 4}), leafEntry(50, {6, 5})};
    right.next = kRight;
    EXPECT_THAT(complaint(50), HasSubstr("page 11: the index entries are out of order"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsLeavesThatRunInACircle) {
    for (test::IndexImage* leaf : {&left, &middle, &right})
        leaf->entries = {leafEntry(40, {6, 1}), leafEntry(40, {6, 2})};
    root.entries = {nodeEntry(40, {6, 2}, kLeft)};
    middle.entries = {leafEntry(40, {6, 3})};
    right.entries = {leafEntry(40, {6, 4})};
    right.next = kLeft;
    EXPECT_THAT(complaint(40), HasSubstr("page 9: the index entries are out of order"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsANodeAmongTheLeaves) {
    middle.next = kRoot;
    EXPECT_THAT(complaint(40), HasSubstr("page 8: a node stands among the leaves"));
}

TEST_F(IndexSearchInThreeLeaves, EndsAtAnEmptyLeafWhateverItLeadsTo) {
    right = {.next = kRight};
    EXPECT_THAT(find(40), ElementsAre(RowPointer{6, 3}));
    EXPECT_THAT(find(50), IsEmpty());
}

TEST_F(IndexSearchInThreeLeaves, RejectsPagesOfAnotherTable) {
    root.owner = 2;
    EXPECT_THAT(complaint(10), HasSubstr("page 8: this is no page of the table's indexes"));
    root.owner = test::kLogDefinition;
    right.owner = 2;
    EXPECT_THAT(complaint(50), HasSubstr("page 11: this is no page of the table's indexes"));
    EXPECT_THAT(find(10), ElementsAre(RowPointer{6, 0})) << "leaves that are not needed are not looked at";
}

TEST_F(IndexSearchInThreeLeaves, RejectsPagesOfAnotherKind) {
    damage = [this] { image.putU8(kLeft, 0, 1); };
    EXPECT_THAT(complaint(10), HasSubstr("page 9: an index page is expected, the type is 1"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsAPrefixThatIsLongerThanTheFirstEntry) {
    left.prefix = 10;
    EXPECT_THAT(complaint(10), HasSubstr("page 9: the entries share more bytes than the first one has"));
    left.prefix = 0xFFFF;
    EXPECT_THAT(complaint(10), HasSubstr("share more bytes"));
}

TEST_F(IndexSearchInThreeLeaves, RejectsEntriesTooShortForTheirPointers) {
    left.entries[0] = test::fromHex("00 00 06 00");
    EXPECT_THAT(complaint(10), HasSubstr("page 9: the index entry that ends at 4 is too short"));
    root.entries[0] = test::fromHex("7F 00 00 06 00 00 00");
    EXPECT_THAT(complaint(10), HasSubstr("page 8: the index entry that ends at 7 is too short"));
}

TEST_F(IndexSearchInThreeLeaves, EntriesOutOfOrderWithinALeafEndTheSearch) {
    std::ranges::swap(left.entries[0], left.entries[1]);
    for (const std::uint32_t key : {10U, 20U})
        EXPECT_LE(find(key).size(), 1U);
}

// The page's head, the beginning of its bitmask and its entries.
TEST_F(IndexSearchInThreeLeaves, EveryByteOfTheRootMayBeDamaged) {
    for (std::size_t at = 0; at < format::indexPage::kEntries + 30; ++at) {
        if (at == format::indexPage::kEntryEnds + 8)
            at = format::indexPage::kEntries;
        damage = [this, at] {
            image.putU8(kRoot, at, std::to_integer<unsigned>(image.page(kRoot)[at]) ^ 0xFFU);
        };
        EXPECT_NE(complaint(20), "(another error number)") << at;
    }
}

} // namespace
} // namespace jet
