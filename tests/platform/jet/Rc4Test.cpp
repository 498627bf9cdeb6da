// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Rc4.h"

#include "platform/jet/Format.h"
#include "tests/platform/jet/Images.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

TEST(Rc4, MaskOfTheHeaderIsAsKnown) {
    test::Bytes stream(format::header::kMaskedSize);
    applyRc4(format::header::kMaskKey, stream);
    const test::Bytes start(stream.begin(), stream.begin() + 16);
    const test::Bytes end(stream.end() - 4, stream.end());
    EXPECT_EQ(start, test::fromHex("B5 6F 03 62 61 08 C2 55 EB A9 67 72 43 3F 00 9C"));
    EXPECT_EQ(end, test::fromHex("E9 2D 62 D4"));
}

TEST(Rc4, TwiceIsTheSameAgain) {
    test::Bytes data = test::fromHex("00 01 02 03 04");
    applyRc4(format::header::kMaskKey, data);
    applyRc4(format::header::kMaskKey, data);
    EXPECT_EQ(data, test::fromHex("00 01 02 03 04"));
}

} // namespace
} // namespace jet
