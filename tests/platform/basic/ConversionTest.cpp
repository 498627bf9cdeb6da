// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Conversion.h"

#include "tests/platform/basic/ErrorOf.h"

#include <gtest/gtest.h>

#include <cmath>

namespace basic {
namespace {

TEST(Val, ReadsTheLeadingNumber) {
    EXPECT_EQ(Val("12"), 12);
    EXPECT_EQ(Val("12abc34"), 12);
    EXPECT_EQ(Val("-3.5x"), -3.5);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("5."), 5);
    EXPECT_EQ(Val("1,5"), 1);
    EXPECT_EQ(Val("1.2.3"), 1.2);
}

TEST(Val, GivesZeroWithoutALeadingNumber) {
    for (const char* text : {"", " ", "abc", "-", "+-1", ".", "e5", "&", "&H", "&Hx", "$5"})
        EXPECT_EQ(Val(text), 0) << text;
}

TEST(Val, PassesOverBlanksAndLineEndsEvenBetweenDigits) {
    EXPECT_EQ(Val(" 16 15\t198\r\nth Street"), 1615198);
    EXPECT_EQ(Val("- 5"), -5);
}

TEST(Val, ReadsExponentsOfBothKinds) {
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("1D+3"), 1000);
    EXPECT_EQ(Val("2.5E-1"), 0.25);
    EXPECT_EQ(Val("7e"), 7);
    EXPECT_EQ(Val("7e+"), 7);
}

TEST(Val, ReadsHexadecimalAndOctalWithTheSignOfTheirWidth) {
    EXPECT_EQ(Val("&HFF"), 255);
    EXPECT_EQ(Val("&hFFFF"), -1);
    EXPECT_EQ(Val("&HFFFF&"), 65535);
    EXPECT_EQ(Val("&H10000"), 65536);
    EXPECT_EQ(Val("&HFFFFFFFF"), -1);
    EXPECT_EQ(Val("&O17"), 15);
}

TEST(Val, OverflowsBeyondADoubleAndUnderflowsToZero) {
    EXPECT_EQ(errorOf([] { Val("1e999"); }), kOverflow);
    EXPECT_EQ(errorOf([] { Val("&H1FFFFFFFF"); }), kOverflow);
    EXPECT_EQ(errorOf([] { Val(std::string(400, '9')); }), kOverflow);
    EXPECT_EQ(Val("1e-999"), 0);
}

TEST(CLng, RoundsHalfToEven) {
    EXPECT_EQ(CLng(0.5), 0);
    EXPECT_EQ(CLng(1.5), 2);
    EXPECT_EQ(CLng(2.5), 2);
    EXPECT_EQ(CLng(-2.5), -2);
    EXPECT_EQ(CLng(2.51), 3);
    EXPECT_EQ(CLng("2.5"), 2);
}

TEST(CLng, OverflowsOutside32Bits) {
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.5), -2147483647 - 1);
    EXPECT_EQ(errorOf([] { CLng(2147483647.5); }), kOverflow);
    EXPECT_EQ(errorOf([] { CLng(-2147483648.6); }), kOverflow);
    EXPECT_EQ(errorOf([] { CLng("2147483648"); }), kOverflow);
    EXPECT_EQ(errorOf([] { CLng(std::nan("")); }), kOverflow);
}

TEST(CLng, TakesTextThatIsANumberAsAWhole) {
    EXPECT_EQ(CLng(" 42 "), 42);
    EXPECT_EQ(CLng("-1e2"), -100);
    EXPECT_EQ(CLng("&H10"), 16);
}

TEST(CLng, OtherTextIsATypeMismatch) {
    for (const char* text : {"", " ", "abc", "12abc", "1 2", "--1", "1.2.3"})
        EXPECT_EQ(errorOf([text] { CLng(text); }), kTypeMismatch) << text;
}

TEST(IsNumeric, AcceptsWhatCLngReads) {
    for (const char* text : {"0", "007", " 5 ", "-5", "+5", "1.5", "1e5", "&HFF", "99999999999"})
        EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char* text : {"", " ", "x", "5x", "x5", "1 2", "-", ".", "e5", "1e999"})
        EXPECT_FALSE(IsNumeric(text)) << text;
}

} // namespace
} // namespace basic
