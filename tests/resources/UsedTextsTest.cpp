// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reads the program's own sources: every text number they pass must be in the table, and the English text
// beside it, which is there for the reader of the code, must be the table's.
#include "resources/StringSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace resources {
namespace {

namespace fs = std::filesystem;

using Table = std::map<std::int32_t, std::string>;

std::string contentOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

Table englishTexts() {
    Table texts;
    for (const SourceString& entry :
         parseStrings(contentOf(fs::path(QM_SOURCE_DIR) / "resources/strings.tsv")))
        texts[entry.id] = entry.english;
    return texts;
}

// The adjacent literals of a call as one text, still with its escapes, as C++ joins them.
std::string joined(std::string literals) {
    return std::regex_replace(literals, std::regex(R"rx(^\s*"|"\s*"|"\s*$)rx"), "");
}

std::string escaped(const std::string& text) {
    return std::regex_replace(text, std::regex("\n"), "\\n");
}

struct Findings {
    std::set<std::int32_t> used;
    std::vector<std::string> faults;
};

void scan(const std::string& source, const std::string& name, const Table& texts, Findings& findings) {
    static const std::regex call(
        R"rx((?:LoadLocalString|localText|TextEntry)\s*[({]\s*(\d+)\s*(?:,((?:\s*"(?:[^"\\]|\\.)*")+))?)rx");
    for (std::sregex_iterator found(source.begin(), source.end(), call), end; found != end; ++found) {
        const std::int32_t id = std::stoi((*found)[1]);
        findings.used.insert(id);
        const auto text = texts.find(id);
        if (text == texts.end())
            findings.faults.push_back(name + ": no text " + std::to_string(id));
        else if ((*found)[2].matched && joined((*found)[2]) != escaped(text->second))
            findings.faults.push_back(name + ": another text " + std::to_string(id) + ": " +
                                      joined((*found)[2]));
    }
    // A number that is passed on by a variable would never be looked at.
    static const std::regex hidden(R"rx((?:LoadLocalString|localText|TextEntry)\s*[({]\s*[A-Za-z_])rx");
    if (std::regex_search(source, hidden))
        findings.faults.push_back(name + ": a hidden number");
}

bool isSource(const fs::path& file) {
    return file.extension() == ".cpp" || file.extension() == ".h" || file.extension() == ".in";
}

bool isTableItself(const fs::path& file) {
    return file.stem() == "StringTable" || file.stem() == "LocalText";
}

Findings scanProgram(const Table& texts) {
    Findings findings;
    for (const char* folder :
         {"platform", "resources", "errors", "data", "tray", "app", "audio", "dialogs"}) {
        const fs::path root = fs::path(QM_SOURCE_DIR) / folder;
        if (!fs::exists(root))
            continue;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root))
            if (isSource(entry.path()) && !isTableItself(entry.path()))
                scan(contentOf(entry.path()), entry.path().filename().string(), texts, findings);
    }
    return findings;
}

TEST(UsedTexts, EveryNumberInTheProgramsSourcesIsInTheTable) {
    const Findings findings = scanProgram(englishTexts());
    EXPECT_THAT(findings.faults, ::testing::IsEmpty());
}

// The system's own ones are fixed, shown or not.
TEST(UsedTexts, EveryTextOfOurOwnIsShownSomewhere) {
    constexpr std::int32_t kFirstOfOurOwn = 5000;
    const Table texts = englishTexts();
    const std::set<std::int32_t> used = scanProgram(texts).used;
    for (auto own = texts.lower_bound(kFirstOfOurOwn); own != texts.end(); ++own)
        EXPECT_TRUE(used.contains(own->first)) << own->first << ' ' << own->second;
}

TEST(UsedTexts, AScanSeesMissingNumbersAndOtherTexts) {
    const Table texts{{7, "Close"}, {8, "two\nlines"}};
    Findings findings;
    scan("a(LoadLocalString(7)); b(LoadLocalString( 7, \"Clo\"\n  \"se\")); LoadLocalString(8, "
         "\"two\\nlines\");",
         "ok.cpp", texts, findings);
    EXPECT_THAT(findings.faults, ::testing::IsEmpty());
    EXPECT_THAT(findings.used, ::testing::ElementsAre(7, 8));
    scan("LoadLocalString(9, \"x\"); resources::LoadLocalString(7, \"Open\")", "bad.cpp", texts, findings);
    EXPECT_THAT(findings.faults,
                ::testing::ElementsAre("bad.cpp: no text 9", "bad.cpp: another text 7: Open"));
}

TEST(UsedTexts, AScanSeesTextsOfTheToolkitAndOfTables) {
    const Table texts{{7, "Close"}};
    Findings findings;
    scan("localText(8, \"x\"); Row{1, TextEntry{7, \"Open\"}}", "bad.cpp", texts, findings);
    EXPECT_THAT(findings.faults,
                ::testing::ElementsAre("bad.cpp: no text 8", "bad.cpp: another text 7: Open"));
}

TEST(UsedTexts, AScanRefusesNumbersThatItCannotSee) {
    for (const char* source :
         {"LoadLocalString(id, \"x\")", "localText( entry.id )", "TextEntry{id, text}"}) {
        Findings findings;
        scan(source, "bad.cpp", {}, findings);
        EXPECT_THAT(findings.faults, ::testing::ElementsAre("bad.cpp: a hidden number")) << source;
    }
}

TEST(UsedTexts, TextsOfTheCommandBarAreSeen) {
    const std::set<std::int32_t> used = scanProgram(englishTexts()).used;
    for (const std::int32_t id : {105, 3704, 3732, 3743, 3751, 5030})
        EXPECT_TRUE(used.contains(id)) << id;
}

TEST(UsedTexts, NoTextOfTheTableHoldsACarriageReturn) {
    for (const auto& [id, text] : englishTexts())
        EXPECT_EQ(text.find('\r'), std::string::npos) << id;
}

} // namespace
} // namespace resources
