// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DataPage.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

test::Image pageOf(std::initializer_list<std::size_t> sizes) {
    test::Image image(1);
    std::vector<test::Bytes> rows;
    for (const std::size_t size : sizes)
        rows.emplace_back(size, static_cast<std::byte>(size));
    image.putRows(0, 9, rows);
    return image;
}

DataPage open(const test::Image& image) {
    return DataPage(image.page(0), {"a.mdb", {}, 12});
}

TEST(DataPage, FindsRowsBetweenTheirSlotsAndTheOnesBefore) {
    const test::Image image = pageOf({10, 0, 20});
    const DataPage page = open(image);
    EXPECT_EQ(page.owner(), 9U);
    EXPECT_EQ(page.slotCount(), 3U);
    EXPECT_EQ(page.row(0).size(), 10U);
    EXPECT_EQ(page.row(1).size(), 0U);
    EXPECT_EQ(page.row(2).size(), 20U);
    EXPECT_EQ(page.row(2).u8(0), 20);
}

TEST(DataPage, CountsRowsAndPointersAsLive) {
    test::Image image = pageOf({8, 8, 8, 8});
    image.setSlotFlags(0, 1, format::dataPage::kPointer);
    image.setSlotFlags(0, 2, format::dataPage::kRelocated);
    image.setSlotFlags(0, 3, format::dataPage::kDeleted);
    const DataPage page = open(image);
    EXPECT_EQ(page.kind(0), SlotKind::Row);
    EXPECT_EQ(page.kind(1), SlotKind::Pointer);
    EXPECT_EQ(page.kind(2), SlotKind::Relocated);
    EXPECT_EQ(page.kind(3), SlotKind::Deleted);
    EXPECT_EQ(page.liveSlots(), 2U);
}

TEST(DataPage, AcceptsADeletedRowOfNoLengthAtTheEndOfThePage) {
    test::Image image = pageOf({0});
    image.putU16(0, format::dataPage::kSlots, 0xD000);
    EXPECT_EQ(open(image).kind(0), SlotKind::Deleted);
    EXPECT_EQ(open(image).row(0).size(), 0U);
}

TEST(DataPage, RejectsARowOffsetBeyondThePage) {
    test::Image image = pageOf({10});
    image.putU16(0, format::dataPage::kSlots, 0x1FFF);
    EXPECT_THAT(test::failureOf([&] { open(image).row(0); }),
                HasSubstr("page 12, row 0: the row's bounds 8191"));
}

TEST(DataPage, RejectsARowThatOverlapsTheSlotTable) {
    test::Image image = pageOf({10, 10});
    image.putU16(0, format::dataPage::kSlots + 2, format::dataPage::kSlots + 3);
    EXPECT_THAT(test::failureOf([&] { open(image).row(1); }),
                HasSubstr("outside the page's row area from 18"));
}

TEST(DataPage, RejectsARowThatEndsBeforeItBegins) {
    test::Image image = pageOf({10, 10});
    image.putU16(0, format::dataPage::kSlots + 2, 4090);
    EXPECT_THAT(test::failureOf([&] { open(image).row(1); }), HasSubstr("bounds 4090 to 4086"));
}

TEST(DataPage, RejectsASlotThatIsNotThere) {
    const test::Image image = pageOf({10});
    EXPECT_THAT(test::failureOf([&] { open(image).row(1); }), HasSubstr("only 1 rows"));
}

TEST(DataPage, RejectsMoreSlotsThanAPageCanHave) {
    test::Image image = pageOf({10});
    image.putU16(0, format::dataPage::kSlotCount, 256);
    EXPECT_THAT(test::failureOf([&] { open(image); }), HasSubstr("256 rows do not fit"));
    image.putU16(0, format::dataPage::kSlotCount, 0xFFFF);
    EXPECT_THAT(test::failureOf([&] { open(image); }), HasSubstr("65535 rows do not fit"));
}

TEST(DataPage, RejectsAPageOfAnotherType) {
    test::Image image = pageOf({10});
    image.putU8(0, 0, format::page::kDefinition);
    EXPECT_THAT(test::failureOf([&] { open(image); }), HasSubstr("a data page is expected, the type is 2"));
    EXPECT_FALSE(DataPage::isOwnedBy(image.page(0), 9));
}

TEST(DataPage, KnowsItsOwner) {
    const test::Image image = pageOf({10});
    EXPECT_TRUE(DataPage::isOwnedBy(image.page(0), 9));
    EXPECT_FALSE(DataPage::isOwnedBy(image.page(0), 8));
}

} // namespace
} // namespace jet
