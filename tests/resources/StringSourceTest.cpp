// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringSource.h"

#include "platform/basic/RuntimeError.h"

#include <gtest/gtest.h>

namespace resources {
namespace {

std::string whyRefused(std::string_view file) {
    try {
        parseStrings(file);
    } catch (const basic::RuntimeError& error) {
        return error.description();
    }
    return "accepted";
}

TEST(StringSource, ReadsNumberBothTextsAndMark) {
    const auto entries =
        parseStrings("# comment\n\n7\t\"Close\"\t\"Schließen\"\tfixed\n9\t\"a\"\t\"b\"\tgerman\n");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].id, 7);
    EXPECT_EQ(entries[0].english, "Close");
    EXPECT_EQ(entries[0].german, "Schließen");
    EXPECT_EQ(entries[0].mark, Mark::Fixed);
    EXPECT_EQ(entries[1].mark, Mark::German);
}

TEST(StringSource, KeepsBlanksAtBothEndsOfAText) {
    const auto entries = parseStrings("7\t\" a  \"\t\" \"\tfree");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].english, " a  ");
    EXPECT_EQ(entries[0].german, " ");
    EXPECT_EQ(entries[0].mark, Mark::Free);
}

TEST(StringSource, UnderstandsTheThreeEscapes) {
    const auto entries = parseStrings("7\t\"a\\nb\"\t\"\\\"c\\\" \\\\\"\tfree\n");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].english, "a\nb");
    EXPECT_EQ(entries[0].german, "\"c\" \\");
}

TEST(StringSource, RefusesADuplicateNumber) {
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"b\"\tfree\n7\t\"a\"\t\"b\"\tfree\n"),
              "strings.tsv, line 2: numbers must ascend");
}

TEST(StringSource, RefusesNumbersOutOfOrder) {
    EXPECT_EQ(whyRefused("#\n8\t\"a\"\t\"b\"\tfree\n7\t\"a\"\t\"b\"\tfree\n"),
              "strings.tsv, line 3: numbers must ascend");
}

TEST(StringSource, RefusesALineWithoutGermanText) {
    EXPECT_EQ(whyRefused("7\t\"a\"\tfree\n"), "strings.tsv, line 1: a double quote is missing");
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"\"\tfree\n"), "strings.tsv, line 1: an empty text");
}

TEST(StringSource, RefusesWhatIsNotALineOfTheTable) {
    EXPECT_EQ(whyRefused("seven\t\"a\"\t\"b\"\tfree\n"), "strings.tsv, line 1: no number at its beginning");
    EXPECT_EQ(whyRefused("-7\t\"a\"\t\"b\"\tfree\n"), "strings.tsv, line 1: no number at its beginning");
    EXPECT_EQ(whyRefused("99999999999\t\"a\"\t\"b\"\tfree\n"),
              "strings.tsv, line 1: no number at its beginning");
    EXPECT_EQ(whyRefused("7 \"a\"\t\"b\"\tfree\n"), "strings.tsv, line 1: a tab is missing");
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"b\tfree\n"), "strings.tsv, line 1: a tab inside a text");
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"b"), "strings.tsv, line 1: a double quote is missing");
    EXPECT_EQ(whyRefused("7\t\"a\\"), "strings.tsv, line 1: it ends inside a text");
    EXPECT_EQ(whyRefused("7\t\"\\t\"\t\"b\"\tfree"), "strings.tsv, line 1: an unknown escape");
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"b\"\tperhaps\n"), "strings.tsv, line 1: an unknown mark");
}

TEST(StringSource, RefusesAnotherEncoding) {
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"Schlie\xDF"
                         "en\"\tfree\n"),
              "strings.tsv, line 1: not UTF-8");
    EXPECT_EQ(whyRefused("7\t\"a\"\t\"b\"\tfree\xC3"), "strings.tsv, line 1: not UTF-8");
}

} // namespace
} // namespace resources
