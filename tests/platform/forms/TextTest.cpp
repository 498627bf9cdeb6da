// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Text.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(Text, PassesUtf8ThroughBothWays) {
    const std::string text = "M\xC3\xBCller \xF0\x9F\x93\x9E";
    EXPECT_EQ(toQString(text), QStringLiteral(u"Müller 📞"));
    EXPECT_EQ(fromQString(toQString(text)), text);
}

TEST(Text, BytesThatAreNoUtf8BecomeReplacementCharacters) {
    EXPECT_EQ(toQString("a\xFFz"), QStringLiteral(u"a\uFFFDz"));
}

TEST(Text, AmpersandInACaptionThatIsDataIsDoubled) {
    EXPECT_EQ(withoutAccessKeys("Sales & Support"), QStringLiteral("Sales && Support"));
}

TEST(Text, LineBreaksAndTabsBecomeOneBlank) {
    EXPECT_EQ(asOneLine("first\r\nsecond\tthird"), QStringLiteral("first second third"));
    EXPECT_EQ(asOneLine("two  blanks"), QStringLiteral("two  blanks"));
}

TEST(Text, AnEndlessLineIsCut) {
    EXPECT_EQ(asOneLine(std::string(100000, 'x')).size(), 1000);
}

} // namespace
} // namespace forms
