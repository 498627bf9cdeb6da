// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/UsageMap.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr RowPointer kMap{1, 0};

// Page 1 holds `row` as its only row.
test::Image withMap(std::size_t pages, const test::Bytes& row) {
    test::Image image(pages);
    image.putRows(1, 0, {row});
    return image;
}

TEST(UsageMap, ReadsAnInlineMap) {
    test::SourceOf source(withMap(200, test::inlineMap({0, 7, 8, 199})));
    const UsageMap map = UsageMap::read(source.pages, kMap);
    EXPECT_THAT(map.pages(), ElementsAre(0, 7, 8, 199));
    EXPECT_TRUE(map.contains(8));
    EXPECT_FALSE(map.contains(9));
    EXPECT_TRUE(map.isInline());
    EXPECT_EQ(map.coveredEnd(), 512U);
    EXPECT_FALSE(map.firstBeyondEnd());
}

TEST(UsageMap, CountsAnInlineMapFromItsStartPage) {
    test::Bytes row = test::inlineMap({0, 3});
    row[1] = std::byte{16};
    test::SourceOf source(withMap(30, row));
    EXPECT_THAT(UsageMap::read(source.pages, kMap).pages(), ElementsAre(16, 19));
}

TEST(UsageMap, TakesTheLengthOfAGrownMapFromTheSlots) {
    test::Bytes row = test::inlineMap({});
    row.resize(105);
    row.back() = std::byte{0x80};
    test::SourceOf source(withMap(900, row));
    EXPECT_THAT(UsageMap::read(source.pages, kMap).pages(), ElementsAre(799));
}

TEST(UsageMap, ReadsAMapOfReferencedPages) {
    test::Image image = withMap(5, test::joined({test::fromHex("01"), test::u32(3), test::Bytes(64)}));
    image.put(3, 0, test::fromHex("05 01 00 00 12"));
    test::SourceOf source(image);
    const UsageMap map = UsageMap::read(source.pages, kMap);
    EXPECT_THAT(map.pages(), ElementsAre(1, 4));
    EXPECT_THAT(map.bitmapPages(), ElementsAre(3));
    EXPECT_EQ(map.coveredEnd(), 17U * 32736);
}

TEST(UsageMap, CountsTheSecondReferencedPageFromItsOwnFirst) {
    test::Image image =
        withMap(32740, test::joined({test::fromHex("01"), test::u32(0), test::u32(3), test::Bytes(60)}));
    image.put(3, 0, test::fromHex("05 01 00 00 02"));
    test::SourceOf source(image);
    EXPECT_THAT(UsageMap::read(source.pages, kMap).pages(), ElementsAre(32737));
}

TEST(UsageMap, RejectsAReferencedPageOfAnotherType) {
    test::SourceOf source(withMap(5, test::joined({test::fromHex("01"), test::u32(3), test::Bytes(64)})));
    EXPECT_THAT(test::failureOf([&] { UsageMap::read(source.pages, kMap); }),
                HasSubstr("page 3: a page of a usage map is expected, the type is 0"));
}

TEST(UsageMap, RejectsAReferenceForPagesBeyondTheEnd) {
    test::Image image =
        withMap(5, test::joined({test::fromHex("01"), test::u32(0), test::u32(3), test::Bytes(60)}));
    image.put(3, 0, test::fromHex("05 01"));
    test::SourceOf source(image);
    EXPECT_THAT(test::failureOf([&] { UsageMap::read(source.pages, kMap); }),
                HasSubstr("beyond the end of the file"));
}

TEST(UsageMap, TellsMembersBeyondTheEndApart) {
    test::SourceOf source(withMap(5, test::inlineMap({2, 300, 301})));
    const UsageMap map = UsageMap::read(source.pages, kMap, "Log");
    EXPECT_THAT(map.pages(), ElementsAre(2));
    EXPECT_EQ(map.firstBeyondEnd(), 300U);
    EXPECT_THAT(test::failureOf([&] { map.pagesWithinFile(); }),
                HasSubstr("table Log, page 1, row 0: the usage map names page 300"));
}

TEST(UsageMap, SurvivesTheHighestStartPage) {
    test::Bytes row = test::inlineMap({0});
    std::fill_n(row.begin() + 1, 4, std::byte{0xFF});
    test::SourceOf source(withMap(5, row));
    const UsageMap map = UsageMap::read(source.pages, kMap);
    EXPECT_THAT(map.pages(), IsEmpty());
    EXPECT_TRUE(map.firstBeyondEnd());
}

TEST(UsageMap, RejectsRowsTooShortOrOfUnknownType) {
    test::SourceOf tooShort(withMap(5, test::fromHex("00 00 00")));
    EXPECT_THAT(test::failureOf([&] { UsageMap::read(tooShort.pages, kMap); }), HasSubstr("beyond the end"));
    test::SourceOf unknown(withMap(5, test::fromHex("02 00 00 00 00 FF")));
    EXPECT_THAT(test::failureOf([&] { UsageMap::read(unknown.pages, kMap); }), HasSubstr("unknown type 2"));
    test::SourceOf empty(withMap(5, {}));
    EXPECT_THAT(test::failureOf([&] { UsageMap::read(empty.pages, kMap); }), HasSubstr("beyond the end"));
}

} // namespace
} // namespace jet
