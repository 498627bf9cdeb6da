// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/NamePattern.h"

#include <gtest/gtest.h>

namespace share {
namespace {

TEST(NamePattern, StarStandsForAnyRunOfCharacters) {
    const NamePattern pattern("*.wav");
    EXPECT_TRUE(pattern.matches("a.wav"));
    EXPECT_TRUE(pattern.matches(".wav"));
    EXPECT_TRUE(pattern.matches("a.wav.wav"));
    EXPECT_FALSE(pattern.matches("a.wave"));
    EXPECT_FALSE(pattern.matches("wav"));
}

TEST(NamePattern, ComparesWithoutCase) {
    EXPECT_TRUE(NamePattern("*.wav").matches("GRÜSSE.WAV"));
    EXPECT_TRUE(NamePattern("ä?ü").matches("Ä€Ü"));
}

TEST(NamePattern, QuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(NamePattern("a?c").matches("abc"));
    EXPECT_TRUE(NamePattern("a?c").matches("aüc"));
    EXPECT_FALSE(NamePattern("a?c").matches("ac"));
    EXPECT_FALSE(NamePattern("a?c").matches("abbc"));
}

TEST(NamePattern, SeveralStarsGoBackAsFarAsNeeded) {
    EXPECT_TRUE(NamePattern("*ab*ab*").matches("aab-xab"));
    EXPECT_FALSE(NamePattern("*ab*ab").matches("ab"));
    EXPECT_TRUE(NamePattern("**a**").matches("a"));
}

TEST(NamePattern, ManyStarsEndInTime) {
    std::string pattern;
    for (int i = 0; i < 100; ++i)
        pattern += "a*";
    EXPECT_FALSE(NamePattern(pattern + "b").matches(std::string(250, 'a')));
}

TEST(NamePattern, StarDotStarMatchesEveryName) {
    EXPECT_TRUE(NamePattern("*.*").matches("noDot"));
    EXPECT_TRUE(NamePattern("*.*").matches("a.b"));
}

TEST(NamePattern, DotAndBracketStandForThemselves) {
    EXPECT_FALSE(NamePattern("a.c").matches("abc"));
    EXPECT_TRUE(NamePattern("[a]").matches("[A]"));
}

} // namespace
} // namespace share
