// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The wordings that are not ours to change, to the blank: typed anew for the tests, never copied from the
// table.

#include <array>
#include <cstdint>
#include <string_view>

namespace resources {

struct Wording {
    std::int32_t id;
    std::string_view english;
    std::string_view german;
};

inline constexpr std::array kFixedWordings{
    Wording{10, "Yes", "Ja"},
    Wording{11, "No", "Nein"},
    Wording{103, "Unable to connect to Quillamar Server:  '%1'.",
            "Fehler beim Verbinden mit dem Quillamar-Server: '%1'."},
    Wording{105, "Quillamar Calls", "Quillamar Anrufe"},
    Wording{110, "Details >>", "Details >>"},
    Wording{111, "Send", "Senden"},
    Wording{112, "Ignore", "Ignorieren"},
    Wording{113, "Try again", "Wiederholen"},
    Wording{114, "Cancel", "Abbrechen"},
    Wording{115, "OS:", "Betriebssystem:"},
    Wording{116, "Version:", "Version:"},
    Wording{117, "Component:", "Komponente:"},
    Wording{118, "Module, Function:", "Modul, Funktion:"},
    Wording{119, "Error-Description:", "Fehler-Beschreibung: "},
    Wording{121, "About Quillamar", "Über Quillamar"},
    Wording{122, "OK", "OK"},
    Wording{123, "&System Info...", "&System Info..."},
    Wording{125, "Application Title", "Application Title"},
    Wording{126, "Version", "Version"},
    Wording{128, "Call Details", "Anruf-Details"},
    Wording{129, "Close", "Schließen"},
    Wording{130, "Call ID:", "Anruf-ID:"},
    Wording{131, "Date:", "Datum:"},
    Wording{132, "Caller:", "Anrufer:"},
    Wording{133, "Time:", "Uhrzeit:"},
    Wording{134, "Source:", "Von:"},
    Wording{135, "Details", "Details"},
    Wording{136, "Currently there is no call entry selected.", "Momentan ist kein Eintrag ausgewählt"},
    Wording{137, "Message:", "Nachricht:"},
    Wording{3673, "About ", "Über "},
    Wording{3674, "Version ", "Version"},
    Wording{3676, "System Information Is Unavailable At This Time",
            "Die Anwendung zur System-Information ist derzeit nicht installiert."},
    Wording{3677, "Detail Information", "Details"},
    Wording{3678, "No message recorded", "Keine Nachricht aufgezeichnet"},
    Wording{3679, "Error playing audio file!", "Fehler beim Abspielen der Audio-Datei."},
    Wording{3680, "Are you sure you want to delete all of your messages?",
            "Sind Sie sicher, dass Sie alle Einträge löschen möchten?"},
    Wording{3681, "Delete All Items", "Alle Einträge löschen"},
    Wording{3682, "Quillamar Calls", "Quillamar - Anrufe"},
    Wording{3685, "A connection to the server could not be established.",
            "Es konnte keine Verbindung zum Server aufgebaut werden!"},
    Wording{3689, "Message", "Nachricht"},
    Wording{3694, "Date", "Datum"},
    Wording{3695, "Caller ID", "Anrufer"},
    Wording{3696, "Caller Name", "Anrufer-Name"},
    Wording{3697, "Do you want to review or comment the Error-Report?",
            "Möchten Sie dem Fehlerbericht noch einen Kommentar hinzufügen?"},
    Wording{3699, "The message was sent successfully.", "Die Nachricht wurde erfolgreich gesendet!"},
    Wording{3703, " Error-Report: ", " Fehler-Bericht:"},
    Wording{3704, "Status", "Status"},
    Wording{3706, "Play Message", "Nachricht abspielen"},
    Wording{3710, "Menu", "Menü"},
    Wording{3711, "&Edit", "&Bearbeiten"},
    Wording{3712, "&Tools", "&Extras"},
    Wording{3713, "&Help", "&Hilfe"},
    Wording{3715, "&Exit Quillamar Client", "Quillamar Client &Beenden"},
    Wording{3717, "About Quillamar Client", "Über Quillamar Client"},
    Wording{3719, "&Delete all entries", "Alle Einträge &löschen"},
    Wording{3720, "Deletes all entries in the list", "Löscht alle Einträge in der Liste"},
    Wording{3722, "Select &all entries", "&Alle Einträge auswählen"},
    Wording{3723, "Selects the entire list", "Wählt alle Einträge in der Liste aus"},
    Wording{3732, "Show Details", "Details anzeigen"},
    Wording{3733, "&Options", "Optionen"},
    Wording{3734, "Set application options", "Programm-Optionen festlegen"},
    Wording{3736, "Plays the selected message", "Spielt die ausgewählte Nachricht ab"},
    Wording{3738, "File", "Datei"},
    Wording{3739, "Help", "Hilfe"},
    Wording{3740, "Edit", "Bearbeiten"},
    Wording{3741, "Tools", "Extras"},
    Wording{3743, "Tool7", "Tool7"},
    Wording{3744, "&File", "Datei"},
    Wording{3745, "&Hide window", "Fenster &minimieren"},
    Wording{3746, "&Contents...", "&Inhalt"},
    Wording{3747, "Display the help contents dialog", "Zeigt die Hilfe-Übericht an"},
    Wording{3748, "&Copy selected entries", "Ausgewählte Einträge &kopieren"},
    Wording{3749, "Copies the selection and puts it on the clipboard",
            "Kopiert die ausgewählten Einträge in die Zwischenablage"},
    Wording{3751, "Play", "Wiedergabe"},
    Wording{3754, "Select Quillamar Server", "Quillamar-Server wählen"},
    Wording{3755, "Server-Name:", "Server-Name:"},
    Wording{3756, "Browse Network", "Netzwerk durchsuchen"},
    Wording{3758, "Update-Interval:", "Update-Intervall:"},
    Wording{3760, "Show", "Anzeigen"},
    Wording{3763, "Select a network computer or share.",
            "Wählen Sie einen Computer oder eine Netzwerk-Freigabe."},
    Wording{3764, "Select a network computer.", "Wählen Sie einen Computer."},
    Wording{3765, "You have ", "Sie haben"},
    Wording{3766, " new calls", "neue Anrufe"},
    Wording{3769, "Description", "Beschreibung"},
    Wording{3771, "Loading, please wait...", "Initalisieren..."},
    Wording{3772, "There are currently no mailboxes configured.",
            "Es sind momentan keine Mailboxen ausgewählt."},
    Wording{3773, "The audio file could not be found.", "Die Audio-Datei konnte nicht gefunden werden."},
};

// The English wordings whose German is our own translation.
struct EnglishWording {
    std::int32_t id;
    std::string_view english;
};

inline constexpr std::array kEnglishWordings{
    EnglishWording{120, "An error has occured during execution of a function. Usually the application can "
                        "continue to run. You can stop execution of the current action by pressing 'Cancel' "
                        "or you can retry. To prevent this error-message in the future please press send to "
                        "send us the error-description and some version-information."},
    EnglishWording{138, "Options"},
    EnglishWording{139, "Select the mailboxes you want to monitor from the list above. Please note that you "
                        "must have permission to access these mailboxes."},
    EnglishWording{3652, "AddFilter failed: '"},
    EnglishWording{3683, "&View Call Log"},
    EnglishWording{3684, "&Settings"},
    EnglishWording{3700, "Failed to send Error-Report. Could not start Outlook."},
    EnglishWording{3705, "Tool9"},
    EnglishWording{3707, "Tool11"},
    EnglishWording{3708, "Tool10"},
    EnglishWording{3709, "Tool13"},
    EnglishWording{3742, "PopUp"},
    EnglishWording{3752, "Quillamar-Server:"},
    EnglishWording{3757, "s (10s - 600s)"},
    EnglishWording{3767, "ID"},
    EnglishWording{3768, "Name"},
    EnglishWording{3770, "Close Quillamar Client"},
    EnglishWording{5019, "No audio device present on this system. Cannot play!"},
    EnglishWording{5021, "Audio Playback"},
};

} // namespace resources
