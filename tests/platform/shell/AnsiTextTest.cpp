// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/AnsiText.h"

#include <gtest/gtest.h>

namespace shell {
namespace {

TEST(AnsiTextTest, TurnsEveryByteIntoACharacterAndBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(toAnsi(fromAnsi(text)), text) << byte;
    }
}

TEST(AnsiTextTest, KnowsTheCharactersBetweenControlsAndLatin) {
    EXPECT_EQ(toAnsi(u"\u20AC\u201E\u201C\u0178"), "\x80\x84\x93\x9F");
    EXPECT_EQ(fromAnsi("\x80\x84\x93\x9F"), u"\u20AC\u201E\u201C\u0178");
}

TEST(AnsiTextTest, KeepsUmlauts) {
    EXPECT_EQ(toAnsi(u"\u00C4\u00DF\u00FC"), "\xC4\xDF\xFC");
}

TEST(AnsiTextTest, WritesAQuestionMarkForWhatItCannotSay) {
    EXPECT_EQ(toAnsi(u"a\u0416\u4E2Db"), "a??b");
}

} // namespace
} // namespace shell
