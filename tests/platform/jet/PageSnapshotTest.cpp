// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageSnapshot.h"

#include "platform/jet/ByteView.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/MemoryFile.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

test::Image numberedPages(PageNumber count) {
    test::Image image(count);
    for (PageNumber page = 0; page < count; ++page)
        image.putU32(page, 0, page);
    return image;
}

PageNumber numberOn(PageSnapshot& snapshot, PageNumber page) {
    PageBuffer buffer;
    return ByteView(snapshot.page(page, buffer), {}).u32(0);
}

TEST(PageSnapshot, HoldsThePagesAskedForInAnyOrder) {
    test::MemoryFile file(numberedPages(700).bytes);
    PageReader reader(file, 0);
    PageSnapshot snapshot(reader, {650, 3, 5, 4, 3, 699, 300});
    file.bytes.clear();
    for (const PageNumber page : {3U, 4U, 5U, 300U, 650U, 699U})
        EXPECT_EQ(numberOn(snapshot, page), page);
    EXPECT_EQ(snapshot.pageCount(), 700U);
}

TEST(PageSnapshot, ReadsNeighboursInOneGo) {
    test::MemoryFile file(numberedPages(700).bytes);
    PageReader reader(file, 0);
    std::vector<PageNumber> pages;
    for (PageNumber page = 10; page < 600; page += 2)
        pages.push_back(page);
    PageSnapshot snapshot(reader, pages);
    EXPECT_EQ(file.reads.size(), 3U); // at most 256 pages each
    for (const PageNumber page : pages)
        ASSERT_EQ(numberOn(snapshot, page), page);
}

TEST(PageSnapshot, RefusesAPageThatWasNotAskedFor) {
    test::MemoryFile file(numberedPages(700).bytes);
    PageReader reader(file, 0);
    PageSnapshot snapshot(reader, {5, 300});
    PageBuffer buffer;
    for (const PageNumber page : {0U, 4U, 6U, 299U, 301U, 699U, 70000U})
        EXPECT_THAT(test::failureOf([&] { snapshot.page(page, buffer); }), HasSubstr("was not read along"));
    PageSnapshot empty(reader, {});
    EXPECT_THAT(test::failureOf([&] { empty.page(0, buffer); }), HasSubstr("was not read along"));
}

TEST(PageSnapshot, RefusesPagesBeyondTheEndBeforeItAllocates) {
    test::MemoryFile file(numberedPages(3).bytes);
    PageReader reader(file, 0);
    EXPECT_THAT(test::failureOf([&] { PageSnapshot(reader, {1, 0xFFFFFF}); }), HasSubstr("beyond the end"));
}

} // namespace
} // namespace jet
