// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/UncPath.h"

#include "tests/platform/share/ExpectError.h"

#include <gmock/gmock.h>

namespace share {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(UncPath, TakesANetworkNameApart) {
    const UncPath path = UncPath::parse(R"(\\srv01\Quillamar_0$\MBX\7\qmLog.mdb)");
    EXPECT_EQ(path.server(), "srv01");
    EXPECT_EQ(path.share(), "Quillamar_0$");
    EXPECT_THAT(path.components(), ElementsAre("MBX", "7", "qmLog.mdb"));
    EXPECT_EQ(path.text(), R"(\\srv01\Quillamar_0$\MBX\7\qmLog.mdb)");
}

TEST(UncPath, ShareItselfHasNoComponents) {
    EXPECT_THAT(UncPath::parse(R"(\\srv01\Quillamar_0$)").components(), IsEmpty());
    EXPECT_EQ(UncPath::parse(R"(\\srv01\Quillamar_0$\)").text(), R"(\\srv01\Quillamar_0$)");
}

TEST(UncPath, KeepsUmlautsBlanksAndApostrophes) {
    EXPECT_EQ(UncPath::parse(R"(\\s\x\Günther's call .wav)").components().back(), "Günther's call .wav");
}

TEST(UncPath, BuildsChildAndParent) {
    const UncPath share("srv", "data$");
    EXPECT_EQ(share.child("a").child("b").text(), R"(\\srv\data$\a\b)");
    EXPECT_EQ(share.child("a").child("b").parent().text(), R"(\\srv\data$\a)");
    EXPECT_ERROR(basic::kPathNotFound, share.parent());
}

TEST(UncPath, RefusesWhatIsNoNetworkName) {
    for (const char* text : {"", "\\", "\\\\", "\\\\srv", "\\\\srv\\", "\\srv\\share", "srv\\share",
                             "/srv/share", "C:\\data\\qmLog.mdb", "\\\\\\Quillamar_0$", "\\\\\\share\\a"})
        EXPECT_ERROR(basic::kPathNotFound, UncPath::parse(text)) << text;
}

class HostileComponent : public ::testing::TestWithParam<std::string> {};

TEST_P(HostileComponent, IsRefusedAsAChildAndInsideAPath) {
    EXPECT_ERROR(basic::kPathNotFound, UncPath("srv", "share").child(GetParam()));
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parse("\\\\srv\\share\\" + GetParam() + "\\x"));
    EXPECT_ERROR(basic::kPathNotFound, UncPath(GetParam(), "share"));
    EXPECT_ERROR(basic::kPathNotFound, UncPath("srv", GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Names, HostileComponent,
                         ::testing::Values("", ".", "..", "...", " ", ".. ", ". .", "a\\..\\..\\b",
                                           "../../etc", "a/b", "/", "c:", "C:\\x", "x:stream",
                                           std::string("a\0b", 3), std::string(1, '\0'), "a\nb", "a\x7f",
                                           "*.wav", "a?b", "a\"b", "a<b", "a>b", "a|b", "\xC0\xAE\xC0\xAE",
                                           "\xC0\xAF", "\xFF", "\xED\xA0\x80", std::string(256, 'a')));

TEST(UncPath, BackslashInsideAComponentIsNotAChild) {
    EXPECT_ERROR(basic::kPathNotFound, UncPath("srv", "share").child("a\\b"));
}

TEST(UncPath, DoubledSeparatorIsAnEmptyComponent) {
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parse(R"(\\srv\share\a\\b)"));
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parse(R"(\\srv\share\a\\)"));
}

TEST(UncPath, WildcardsStandOnlyInAPatternsLastComponent) {
    EXPECT_EQ(UncPath::parsePattern(R"(\\srv\share\7\*.wav)").components().back(), "*.wav");
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parsePattern(R"(\\srv\share\*\a.wav)"));
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parsePattern(R"(\\srv\*)"));
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parsePattern(R"(\\srv\share\7\)"));
}

TEST(UncPath, RefusesAnEndlessPath) {
    std::string text = R"(\\srv\share)";
    while (text.size() < 5000)
        text += R"(\abc)";
    EXPECT_ERROR(basic::kPathNotFound, UncPath::parse(text));
}

TEST(UncPath, ErrorSaysWhatIsWrong) {
    try {
        UncPath("srv", "share").child("..");
        FAIL();
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.description(), "not a network path: ..: a component of dots or blanks only");
    }
}

} // namespace
} // namespace share
