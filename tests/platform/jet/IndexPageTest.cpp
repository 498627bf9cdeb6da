// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexPage.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/IndexImages.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace jet {
namespace {

using test::IndexImage;
using testing::HasSubstr;

test::Image imageOf(const IndexImage& index) {
    test::Image image(1);
    test::putIndexPage(image, 0, index);
    return image;
}

IndexPage open(const test::Image& image) {
    return {image.page(0), {"a.mdb", "Log", 9}};
}

test::Bytes keyOf(const IndexPage& page) {
    return {page.key().begin(), page.key().end()};
}

std::string complaintAbout(const test::Image& image) {
    return test::failureOf([&] {
        IndexPage page = open(image);
        while (page.nextEntry()) {
        }
    });
}

TEST(IndexPage, ReadsEntriesOfALeaf) {
    const test::Image image =
        imageOf({.previous = 3,
                 .next = 4,
                 .entries = {test::leafEntry(1, {6, 0}), test::leafEntry(2, {0x012345, 255})}});
    IndexPage page = open(image);
    EXPECT_TRUE(page.isLeaf());
    EXPECT_EQ(page.owner(), test::kLogDefinition);
    EXPECT_EQ(page.previous(), 3U);
    EXPECT_EQ(page.next(), 4U);
    ASSERT_TRUE(page.nextEntry());
    EXPECT_EQ(keyOf(page), test::fromHex("7F 80 00 00 01"));
    EXPECT_EQ(page.row(), (RowPointer{6, 0}));
    ASSERT_TRUE(page.nextEntry());
    EXPECT_EQ(keyOf(page), test::fromHex("7F 80 00 00 02"));
    EXPECT_EQ(page.row(), (RowPointer{0x012345, 255}));
    EXPECT_FALSE(page.nextEntry());
    EXPECT_EQ(page.usedBytes(), 18U);
}

TEST(IndexPage, ReadsChildrenOfANode) {
    const test::Image image =
        imageOf({.isLeaf = false, .tail = 12, .entries = {test::nodeEntry(1, {6, 0}, 11)}});
    IndexPage page = open(image);
    EXPECT_FALSE(page.isLeaf());
    EXPECT_EQ(page.tail(), 12U);
    ASSERT_TRUE(page.nextEntry());
    EXPECT_EQ(page.child(), 11U);
    EXPECT_EQ(page.row(), (RowPointer{6, 0}));
}

TEST(IndexPage, GivesLaterEntriesThePrefixOfTheFirst) {
    const test::Image image =
        imageOf({.prefix = 4,
                 .entries = {test::leafEntry(0x01020304, {6, 0}), test::fromHex("05 00 00 06 01"),
                             test::fromHex("06 00 00 06 02")}});
    IndexPage page = open(image);
    page.nextEntry();
    ASSERT_TRUE(page.nextEntry());
    EXPECT_EQ(keyOf(page), test::fromHex("7F 81 02 03 05"));
    ASSERT_TRUE(page.nextEntry());
    EXPECT_EQ(keyOf(page), test::fromHex("7F 81 02 03 06"));
    EXPECT_EQ(page.row(), (RowPointer{6, 2}));
}

TEST(IndexPage, ReadsAFullPageToItsLastByte) {
    std::vector<test::Bytes> entries;
    for (std::uint32_t i = 0; i < 401; ++i)
        entries.push_back(test::leafEntry(i, {6, 0}));
    entries.back().insert(entries.back().begin(), 7, std::byte{1}); // 401 * 9 + 7 = 3616
    const test::Image image = imageOf({.entries = entries});
    IndexPage page = open(image);
    std::size_t count = 0;
    while (page.nextEntry())
        ++count;
    EXPECT_EQ(count, 401U);
    EXPECT_EQ(page.usedBytes(), format::indexPage::kEntrySpace);
}

TEST(IndexPage, EmptyPageHasNoEntry) {
    const test::Image image = imageOf({});
    EXPECT_FALSE(open(image).nextEntry());
}

TEST(IndexPage, RejectsAPageOfAnotherType) {
    test::Image image = imageOf({});
    image.putU8(0, 0, format::page::kData);
    EXPECT_THAT(complaintAbout(image), HasSubstr("page 9: an index page is expected, the type is 1"));
}

TEST(IndexPage, RejectsEntriesTooShortForAPointer) {
    EXPECT_THAT(complaintAbout(imageOf({.entries = {test::fromHex("7F 00 00 06")}})), HasSubstr("too short"));
    EXPECT_THAT(
        complaintAbout(imageOf({.isLeaf = false, .entries = {test::fromHex("7F 00 00 06 00 00 00 0B")}})),
        HasSubstr("the index entry that ends at 8 is too short"));
}

TEST(IndexPage, RejectsAPrefixLongerThanTheFirstEntry) {
    const test::Image image =
        imageOf({.prefix = 200, .entries = {test::leafEntry(1, {6, 0}), test::leafEntry(2, {6, 1})}});
    EXPECT_THAT(complaintAbout(image), HasSubstr("share more bytes than the first one has"));
}

} // namespace
} // namespace jet
