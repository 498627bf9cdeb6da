// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Utf8.h"

#include <gtest/gtest.h>

namespace basic {
namespace {

TEST(Utf8, ReadsCodePointsOfEveryLength) {
    const std::string text = "a\u00E4\u20AC\U0001F600";
    EXPECT_TRUE(isValidUtf8(text));
    EXPECT_EQ(utf8At(text, 0).codePoint, U'a');
    EXPECT_EQ(utf8At(text, 1).codePoint, 0xE4U);
    EXPECT_EQ(utf8At(text, 3).codePoint, 0x20ACU);
    EXPECT_EQ(utf8At(text, 6).codePoint, 0x1F600U);
    EXPECT_EQ(utf8At(text, 6).length, 4U);
}

TEST(Utf8, RefusesWhatIsNotValid) {
    for (const char* bytes : {"\x80", "\xC0\xAF", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                              "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82", "\xC3\x28"})
        EXPECT_FALSE(isValidUtf8(bytes));
}

TEST(Utf8, GoesToUtf16AndBack) {
    const std::string text = "Anr\u00FCfe \u20AC \U0001F600";
    const std::u16string units = utf8ToUtf16(text);
    EXPECT_EQ(units, u"Anr\u00FCfe \u20AC \U0001F600");
    EXPECT_EQ(utf16ToUtf8(units), text);
}

TEST(Utf8, KnowsWhetherSurrogatesArePaired) {
    EXPECT_TRUE(isValidUtf16(u"a\U0001F600b"));
    EXPECT_FALSE(isValidUtf16(std::u16string{char16_t{0xD83D}}));
    EXPECT_FALSE(isValidUtf16(std::u16string{char16_t{0xD83D}, u'a'}));
    EXPECT_FALSE(isValidUtf16(std::u16string{char16_t{0xDE00}, char16_t{0xD83D}}));
}

TEST(Utf8, LoneSurrogatesAndBadBytesBecomeTheReplacementCharacter) {
    const std::u16string units{u'a', char16_t{0xD800}, u'b', char16_t{0xDC00}, char16_t{0xD801}};
    EXPECT_EQ(utf16ToUtf8(units), "a\uFFFDb\uFFFD\uFFFD");
    EXPECT_EQ(utf8ToUtf16("a\xFF"), u"a\uFFFD");
    std::string text;
    appendUtf8(text, 0xD800);
    appendUtf8(text, 0x110000);
    EXPECT_EQ(text, "\uFFFD\uFFFD");
}

} // namespace
} // namespace basic
