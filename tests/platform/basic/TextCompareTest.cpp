// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/TextCompare.h"

#include <gtest/gtest.h>

#include <map>

namespace basic {
namespace {

TEST(TextCompare, IgnoresTheCaseOfAsciiLetters) {
    EXPECT_TRUE(equalText("CallLog", "calllog"));
    EXPECT_TRUE(equalText("", ""));
    EXPECT_FALSE(equalText("CallLog", "CallLo"));
    EXPECT_FALSE(equalText("a[", "a{"));
    EXPECT_FALSE(equalText("@", "`"));
}

TEST(TextCompare, IgnoresTheCaseOfOtherAlphabets) {
    EXPECT_TRUE(equalText("ÄÖÜÀØÞ", "äöüàøþ"));
    EXPECT_TRUE(equalText("ĀĐŁŃŸŹŽ", "āđłńÿźž"));
    EXPECT_TRUE(equalText("ΑΩΣ", "αωσ"));
    EXPECT_TRUE(equalText("ЁЖЯ", "ёжя"));
    EXPECT_TRUE(equalText("ẤỸ", "ấỹ"));
}

TEST(TextCompare, KeepsDifferentLettersApart) {
    EXPECT_FALSE(equalText("×", "÷"));
    EXPECT_FALSE(equalText("ä", "a"));
    EXPECT_FALSE(equalText("ß", "ss"));
    EXPECT_FALSE(equalText("ķ", "Ĺ"));
}

TEST(TextCompare, TakesBytesThatAreNoTextAsTheyAre) {
    EXPECT_TRUE(equalText("A\xFF", "a\xFF"));
    EXPECT_FALSE(equalText("\xC3", "\xE4"));
    EXPECT_EQ(foldCase("\xC3"), "\xC3");
    EXPECT_EQ(foldCase(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(TextCompare, Orders) {
    EXPECT_LT(compareText("abc", "ABD"), 0);
    EXPECT_GT(compareText("abc", "AB"), 0);
    EXPECT_EQ(compareText("abc", "ABC"), 0);
    const std::map<std::string, int, TextLess> map{{"Name", 1}, {"NAME", 2}, {"Other", 3}};
    EXPECT_EQ(map.size(), 2U);
    EXPECT_EQ(map.count("name"), 1U);
}

} // namespace
} // namespace basic
