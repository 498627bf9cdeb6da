// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TextCodec.h"

#include "tests/platform/jet/Images.h"

#include <gtest/gtest.h>

namespace jet {
namespace {

std::string text(std::string_view hex) {
    return decodeText(test::fromHex(hex));
}

TEST(TextCodec, ReadsPlainUtf16) {
    EXPECT_EQ(text("41 00 E4 00 AC 20"), "A\xC3\xA4\xE2\x82\xAC");
    EXPECT_EQ(text(""), "");
}

TEST(TextCodec, ReadsCompressedAscii) {
    EXPECT_EQ(text("FF FE 2B 34 39 33 30 30 30 30 30 33"), "+493000003");
    EXPECT_EQ(text("FF FE"), "");
}

TEST(TextCodec, CompressedBytesAreLatin1NotWindows1252) {
    EXPECT_EQ(text("FF FE E4 80"), "\xC3\xA4\xC2\x80");
}

TEST(TextCodec, HighByteAnywhereInALongCompressedTextIsSeen) {
    for (std::size_t at = 0; at < 40; ++at) {
        std::string stored = "\xFF\xFE" + std::string(40, 'x');
        stored[2 + at] = '\xE9';
        std::string expected(40, 'x');
        expected.replace(at, 1, "\xC3\xA9");
        EXPECT_EQ(decodeText(std::as_bytes(std::span(stored))), expected) << at;
    }
}

TEST(TextCodec, ZeroByteSwitchesToUtf16AndBack) {
    EXPECT_EQ(text("FF FE 41 42 00 AC 20 00 43"), "AB\xE2\x82\xAC"
                                                  "C");
    EXPECT_EQ(text("FF FE 00 16 04 17 04 00 61 00 18 04"), "\xD0\x96\xD0\x97"
                                                           "a\xD0\x98");
}

TEST(TextCodec, SwitchBackIsSeenOnlyBetweenUnits) {
    // U+0041 has a zero high byte, which is no switch.
    EXPECT_EQ(text("FF FE 00 41 00 42 00"), "AB");
}

TEST(TextCodec, DropsAHalfUnitAtTheEnd) {
    EXPECT_EQ(text("41 00 42"), "A");
    EXPECT_EQ(text("41"), "");
    EXPECT_EQ(text("FF FE 00 41 00 42"), "A");
    EXPECT_EQ(text("FF"), "");
}

TEST(TextCodec, JoinsSurrogatePairs) {
    EXPECT_EQ(text("3D D8 00 DE"), "\xF0\x9F\x98\x80");
}

TEST(TextCodec, ReplacesLoneSurrogates) {
    EXPECT_EQ(text("3D D8 41 00"), "\xEF\xBF\xBD"
                                   "A");
    EXPECT_EQ(text("00 DE 41 00"), "\xEF\xBF\xBD"
                                   "A");
    EXPECT_EQ(text("3D D8"), "\xEF\xBF\xBD");
    EXPECT_EQ(text("3D D8 3D D8 00 DE"), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
    EXPECT_EQ(text("FF FE 00 3D D8 00 41"), "\xEF\xBF\xBD"
                                            "A");
}

TEST(TextCodec, PlainTextKnowsNoMark) {
    EXPECT_EQ(decodePlainText(test::fromHex("FF FE 41 00")), "\xEF\xBB\xBF"
                                                             "A");
}

TEST(TextCodec, LongTextsComeOutWhole) {
    std::string expected;
    test::Bytes stored;
    for (int i = 0; i < 2000; ++i) {
        expected += "\xE2\x82\xAC";
        stored.push_back(std::byte{0xAC});
        stored.push_back(std::byte{0x20});
    }
    EXPECT_EQ(decodeText(stored), expected);
}

TEST(TextCodec, AppendsToWhatIsThere) {
    std::string to = "is ";
    appendText(to, test::fromHex("FF FE 41"));
    appendText(to, test::fromHex("42 00"));
    EXPECT_EQ(to, "is AB");
}

} // namespace
} // namespace jet
