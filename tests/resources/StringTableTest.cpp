// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringTable.h"

#include "resources/ProductData.h"
#include "resources/StringSource.h"
#include "tests/resources/FixedWordings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace resources {
namespace {

std::vector<SourceString> tableSource() {
    std::ostringstream text;
    text << std::ifstream(QM_SOURCE_DIR "/resources/strings.tsv", std::ios::binary).rdbuf();
    return parseStrings(text.str());
}

std::vector<std::int32_t> numbersOf(const auto& wordings) {
    std::vector<std::int32_t> numbers;
    for (const auto& wording : wordings)
        numbers.push_back(wording.id);
    return numbers;
}

class StringTable : public ::testing::Test {
protected:
    void TearDown() override { setLanguage(Language::English); }

    static std::string in(Language wanted, std::int32_t id) {
        setLanguage(wanted);
        return LoadLocalString(id);
    }
};

TEST_F(StringTable, KeepsBothFixedWordingsToTheLetter) {
    for (const Wording& wording : kFixedWordings) {
        EXPECT_EQ(in(Language::English, wording.id), wording.english) << wording.id;
        EXPECT_EQ(in(Language::German, wording.id), wording.german) << wording.id;
    }
}

TEST_F(StringTable, KeepsWordingsThatOnlyEnglishHasFixed) {
    for (const EnglishWording& wording : kEnglishWordings) {
        EXPECT_EQ(in(Language::English, wording.id), wording.english) << wording.id;
        EXPECT_NE(in(Language::German, wording.id), "") << wording.id;
    }
}

TEST_F(StringTable, MarksOfTheTableAreThoseOfTheWordings) {
    std::vector<std::int32_t> fixed;
    std::vector<std::int32_t> german;
    for (const SourceString& entry : tableSource()) {
        if (entry.mark == Mark::Fixed)
            fixed.push_back(entry.id);
        if (entry.mark == Mark::German)
            german.push_back(entry.id);
    }
    EXPECT_THAT(fixed, testing::ElementsAreArray(numbersOf(kFixedWordings)));
    EXPECT_THAT(german, testing::ElementsAreArray(numbersOf(kEnglishWordings)));
}

TEST_F(StringTable, TheTwoWindowCaptionsDifferInGermanOnly) {
    EXPECT_EQ(in(Language::English, 105), in(Language::English, 3682));
    EXPECT_EQ(in(Language::German, 105), "Quillamar Anrufe");
    EXPECT_EQ(in(Language::German, 3682), "Quillamar - Anrufe");
}

TEST_F(StringTable, FirstAndLastEntryAreFound) {
    EXPECT_EQ(in(Language::German, 10), "Ja");
    EXPECT_EQ(in(Language::German, 5070), "Server auswählen");
}

TEST_F(StringTable, ANumberThatIsNotInTheTableGivesAnEmptyText) {
    for (const std::int32_t id : {-1, 0, 9, 12, 3686, 1'000'000})
        EXPECT_EQ(LoadLocalString(id, "ignored"), "") << id;
}

TEST_F(StringTable, TheSecondArgumentIsNotUsed) {
    EXPECT_EQ(LoadLocalString(114, "something else"), "Cancel");
}

TEST_F(StringTable, EnglishUnlessTheLocaleIsGerman) {
    for (const char* german : {"de", "de_DE", "de_DE.UTF-8", "de-AT", "DE_CH@euro", "de.UTF-8"})
        EXPECT_EQ(languageOf(german), Language::German) << german;
    for (const char* other :
         {"", "d", "C", "C.UTF-8", "POSIX", "en_GB.UTF-8", "den", "del_US", "nds_DE", "fr_FR"})
        EXPECT_EQ(languageOf(other), Language::English) << other;
}

TEST_F(StringTable, MakersAddressesAreReserved) {
    EXPECT_TRUE(kSupportAddress.ends_with(".example"));
    EXPECT_NE(LoadLocalString(124).find("www.corvantis.example"), std::string::npos);
    EXPECT_NE(LoadLocalString(127).find("\nCopyright"), std::string::npos);
}

} // namespace
} // namespace resources
