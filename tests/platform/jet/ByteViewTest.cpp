// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ByteView.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

const Place kPlace{"a.mdb", "Log", 7, 3};

TEST(ByteView, ReadsLittleAndBigEndian) {
    const test::Bytes bytes = test::fromHex("01 02 03 04 05 06 07 08");
    const ByteView view(bytes, kPlace);
    EXPECT_EQ(view.u8(7), 0x08);
    EXPECT_EQ(view.u16(0), 0x0201);
    EXPECT_EQ(view.u24(1), 0x040302U);
    EXPECT_EQ(view.u32(4), 0x08070605U);
    EXPECT_EQ(view.u64(0), 0x0807060504030201U);
    EXPECT_EQ(view.u24BigEndian(0), 0x010203U);
    EXPECT_EQ(view.u32BigEndian(4), 0x05060708U);
}

TEST(ByteView, RefusesToReadBeyondTheEnd) {
    const test::Bytes bytes(8);
    const ByteView view(bytes, kPlace);
    EXPECT_THAT(test::failureOf([&] { view.u8(8); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view.u16(7); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view.u32(5); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view.u64(1); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view.slice(4, 5); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view.slice(1, SIZE_MAX); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view.u32(SIZE_MAX); }), HasSubstr("beyond the end"));
}

TEST(ByteView, ErrorNamesFileTablePageAndRow) {
    const ByteView view({}, kPlace);
    EXPECT_THAT(test::failureOf([&] { view.u8(0); }), HasSubstr("a.mdb, table Log, page 7, row 3: "));
}

TEST(ByteView, EmptySliceAtTheEndIsFine) {
    const test::Bytes bytes(8);
    EXPECT_TRUE(ByteView(bytes, kPlace).slice(8, 0).empty());
}

} // namespace
} // namespace jet
