// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringTable.h"

#include "resources/ProductData.h"

#include <gtest/gtest.h>

#include <array>

namespace resources {
namespace {

class StringTable : public ::testing::Test {
protected:
    void TearDown() override { setLanguage(Language::English); }

    static std::string in(Language wanted, std::int32_t id) {
        setLanguage(wanted);
        return LoadLocalString(id);
    }
};

struct Wording {
    std::int32_t id;
    std::string_view english;
    std::string_view german;
};

// Typed anew, not copied from the table: every text with a peculiar blank, spelling or ampersand, and those
// that take part in joined sentences.
constexpr std::array kPeculiar{
    Wording{10, "Yes", "Ja"},
    Wording{11, "No", "Nein"},
    Wording{103, "Unable to connect to Quillamar Server:  '%1'.",
            "Fehler beim Verbinden mit dem Quillamar-Server: '%1'."},
    Wording{110, "Details >>", "Details >>"},
    Wording{114, "Cancel", "Abbrechen"},
    Wording{118, "Module, Function:", "Modul, Funktion:"},
    Wording{119, "Error-Description:", "Fehler-Beschreibung: "},
    Wording{123, "&System Info...", "&System Info..."},
    Wording{125, "Application Title", "Application Title"},
    Wording{134, "Source:", "Von:"},
    Wording{136, "Currently there is no call entry selected.", "Momentan ist kein Eintrag ausgewählt"},
    Wording{3673, "About ", "Über "},
    Wording{3674, "Version ", "Version"},
    Wording{3676, "System Information Is Unavailable At This Time",
            "Die Anwendung zur System-Information ist derzeit nicht installiert."},
    Wording{3677, "Detail Information", "Details"},
    Wording{3679, "Error playing audio file!", "Fehler beim Abspielen der Audio-Datei."},
    Wording{3685, "A connection to the server could not be established.",
            "Es konnte keine Verbindung zum Server aufgebaut werden!"},
    Wording{3695, "Caller ID", "Anrufer"},
    Wording{3696, "Caller Name", "Anrufer-Name"},
    Wording{3703, " Error-Report: ", " Fehler-Bericht:"},
    Wording{3711, "&Edit", "&Bearbeiten"},
    Wording{3712, "&Tools", "&Extras"},
    Wording{3713, "&Help", "&Hilfe"},
    Wording{3715, "&Exit Quillamar Client", "Quillamar Client &Beenden"},
    Wording{3719, "&Delete all entries", "Alle Einträge &löschen"},
    Wording{3722, "Select &all entries", "&Alle Einträge auswählen"},
    Wording{3733, "&Options", "Optionen"},
    Wording{3734, "Set application options", "Programm-Optionen festlegen"},
    Wording{3736, "Plays the selected message", "Spielt die ausgewählte Nachricht ab"},
    Wording{3743, "Tool7", "Tool7"},
    Wording{3744, "&File", "Datei"},
    Wording{3745, "&Hide window", "Fenster &minimieren"},
    Wording{3746, "&Contents...", "&Inhalt"},
    Wording{3747, "Display the help contents dialog", "Zeigt die Hilfe-Übericht an"},
    Wording{3748, "&Copy selected entries", "Ausgewählte Einträge &kopieren"},
    Wording{3749, "Copies the selection and puts it on the clipboard",
            "Kopiert die ausgewählten Einträge in die Zwischenablage"},
    Wording{3758, "Update-Interval:", "Update-Intervall:"},
    Wording{3765, "You have ", "Sie haben"},
    Wording{3766, " new calls", "neue Anrufe"},
    Wording{3771, "Loading, please wait...", "Initalisieren..."},
    Wording{3772, "There are currently no mailboxes configured.",
            "Es sind momentan keine Mailboxen ausgewählt."},
    Wording{3773, "The audio file could not be found.", "Die Audio-Datei konnte nicht gefunden werden."},
};

TEST_F(StringTable, KeepsPeculiarWordingsToTheLetter) {
    for (const Wording& wording : kPeculiar) {
        EXPECT_EQ(in(Language::English, wording.id), wording.english) << wording.id;
        EXPECT_EQ(in(Language::German, wording.id), wording.german) << wording.id;
    }
}

TEST_F(StringTable, TheTwoWindowCaptionsDifferInGermanOnly) {
    EXPECT_EQ(in(Language::English, 105), in(Language::English, 3682));
    EXPECT_EQ(in(Language::German, 105), "Quillamar Anrufe");
    EXPECT_EQ(in(Language::German, 3682), "Quillamar - Anrufe");
}

TEST_F(StringTable, KeepsWordingsThatOnlyEnglishHasFixed) {
    EXPECT_EQ(
        in(Language::English, 120),
        "An error has occured during execution of a function. Usually the application can continue to run. "
        "You can stop execution of the current action by pressing 'Cancel' or you can retry. To prevent "
        "this error-message in the future please press send to send us the error-description and some "
        "version-information.");
    EXPECT_EQ(in(Language::English, 139),
              "Select the mailboxes you want to monitor from the list above. Please note that you must have "
              "permission to access these mailboxes.");
    EXPECT_EQ(in(Language::English, 3652), "AddFilter failed: '");
    EXPECT_EQ(in(Language::English, 3700), "Failed to send Error-Report. Could not start Outlook.");
    EXPECT_EQ(in(Language::English, 3757), "s (10s - 600s)");
    EXPECT_EQ(in(Language::English, 3683), "&View Call Log");
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
