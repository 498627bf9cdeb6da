// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LoadCaptions.h"

#include "app/CommandBarLayout.h"
#include "resources/StringTable.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QMainWindow>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace app {
namespace {

struct Texts {
    std::string caption;
    std::string toolTip;
    bool operator==(const Texts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Texts& texts) {
    return out << '"' << texts.caption << "\" / \"" << texts.toolTip << '"';
}

struct BandTexts {
    const char* name;
    std::string caption;
    std::vector<Texts> tools;
};

// Every band with every tool, as the user sees them.
const std::array kEnglish{
    BandTexts{"Status",
              "Status",
              {{"Tool7", ""},
               {"Tool9", ""},
               {"Play Message", "Plays the selected message"},
               {"Tool11", ""},
               {"Tool10", ""},
               {"Tool13", ""},
               {"Tool14", ""}}},
    BandTexts{"Menu", "Menu", {{"&File", ""}, {"&Edit", ""}, {"&Tools", ""}, {"&Help", ""}}},
    BandTexts{"mnuFile", "File", {{"&Hide window", ""}, {"", ""}, {"&Exit Quillamar Client", ""}}},
    BandTexts{
        "mnuHelp",
        "Help",
        {{"&Contents...", "Display the help contents dialog"}, {"", ""}, {"About Quillamar Client", ""}}},
    BandTexts{"mnuEdit",
              "Edit",
              {{"&Copy selected entries", "Copies the selection and puts it on the clipboard"},
               {"", ""},
               {"&Delete all entries", "Deletes all entries in the list"},
               {"Select &all entries", "Selects the entire list"},
               {"", ""},
               {"&Find...", ""},
               {"Find &Next", ""}}},
    BandTexts{
        "mnuTools",
        "Tools",
        {{"Play Message", ""}, {"Show Details", ""}, {"", ""}, {"&Options", "Set application options"}}},
    BandTexts{"mnuPopup", "PopUp", {{"Play", ""}, {"", ""}, {"Show Details", ""}}},
};

const std::array kGerman{
    BandTexts{"Status",
              "Status",
              {{"Tool7", ""},
               {"Tool9", ""},
               {"Nachricht abspielen", "Spielt die ausgewählte Nachricht ab"},
               {"Tool11", ""},
               {"Tool10", ""},
               {"Tool13", ""},
               {"Tool14", ""}}},
    BandTexts{"Menu", "Menü", {{"Datei", ""}, {"&Bearbeiten", ""}, {"&Extras", ""}, {"&Hilfe", ""}}},
    BandTexts{"mnuFile", "Datei", {{"Fenster &minimieren", ""}, {"", ""}, {"Quillamar Client &Beenden", ""}}},
    BandTexts{"mnuHelp",
              "Hilfe",
              {{"&Inhalt", "Zeigt die Hilfe-Übericht an"}, {"", ""}, {"Über Quillamar Client", ""}}},
    BandTexts{"mnuEdit",
              "Bearbeiten",
              {{"Ausgewählte Einträge &kopieren", "Kopiert die ausgewählten Einträge in die Zwischenablage"},
               {"", ""},
               {"Alle Einträge &löschen", "Löscht alle Einträge in der Liste"},
               {"&Alle Einträge auswählen", "Wählt alle Einträge in der Liste aus"},
               {"", ""},
               {"&Find...", ""},
               {"Find &Next", ""}}},
    BandTexts{"mnuTools",
              "Extras",
              {{"Nachricht abspielen", ""},
               {"Details anzeigen", ""},
               {"", ""},
               {"Optionen", "Programm-Optionen festlegen"}}},
    BandTexts{"mnuPopup", "PopUp", {{"Wiedergabe", ""}, {"", ""}, {"Details anzeigen", ""}}},
};

class LoadCaptionsTest : public testing::Test {
protected:
    LoadCaptionsTest() { layOutCommandBar(ab); }
    ~LoadCaptionsTest() override { resources::setLanguage(resources::Language::English); }

    void load(resources::Language language) {
        resources::setLanguage(language);
        LoadCaptions(errorHandler, window, ab);
    }
    void expectTexts(const std::array<BandTexts, 7>& expected) {
        ASSERT_EQ(ab.BandCount(), 7);
        for (int i = 0; i < 7; ++i)
            expectBand(ab.Bands(i), expected[static_cast<std::size_t>(i)]);
        EXPECT_TRUE(errors.reports.empty());
    }

    errors::RecordingErrorHandler errors;
    errors::RecordingErrorHandler errorHandler;
    QMainWindow window;
    forms::CommandBar ab{window};

private:
    static void expectBand(forms::Band& band, const BandTexts& expected) {
        EXPECT_EQ(band.Name(), expected.name);
        EXPECT_EQ(band.Caption(), expected.caption) << expected.name;
        ASSERT_EQ(band.ToolCount(), static_cast<int>(expected.tools.size())) << expected.name;
        for (int i = 0; i < band.ToolCount(); ++i) {
            const forms::Tool& tool = band.Tools(i);
            EXPECT_EQ((Texts{tool.Caption(), tool.ToolTipText()}),
                      expected.tools[static_cast<std::size_t>(i)])
                << expected.name << ' ' << i;
            if (!tool.ToolTipText().empty()) {
                EXPECT_EQ(tool.Description(), tool.ToolTipText());
            }
        }
    }
};

TEST_F(LoadCaptionsTest, EveryToolAndBandHasItsEnglishText) {
    load(resources::Language::English);
    expectTexts(kEnglish);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Quillamar Calls"));
}

TEST_F(LoadCaptionsTest, EveryToolAndBandHasItsGermanText) {
    load(resources::Language::German);
    expectTexts(kGerman);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Quillamar Anrufe"));
}

TEST_F(LoadCaptionsTest, SearchingKeepsItsEnglishDescriptions) {
    load(resources::Language::German);
    EXPECT_EQ(ab.Bands("mnuEdit").Tools("miEFind").Description(), "Finds the specified text");
    EXPECT_EQ(ab.Bands("mnuEdit").Tools("miEFindNext").Description(), "Repeats the last find operation");
}

} // namespace
} // namespace app
