// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LoadCaptions.h"

#include "app/CommandBarLayout.h"
#include "errors/Procedure.h"
#include "platform/forms/Text.h"
#include "resources/StringTable.h"

#include <array>
#include <cstdint>
#include <string>

namespace app {
namespace {

enum class Property { Caption, ToolTip };

struct ToolText {
    int band;
    int tool; // separators count
    Property property;
    std::int32_t id;
    const char* english;
};

struct BandText {
    int band;
    std::int32_t id;
    const char* english;
};

// A tool that is not listed keeps the English text it was laid out with. A tool tip is the description as
// well.
constexpr std::array kTools{
    ToolText{0, 0, Property::Caption, 3743, "Tool7"},
    ToolText{0, 2, Property::Caption, 3706, "Play Message"},
    ToolText{0, 2, Property::ToolTip, 3736, "Plays the selected message"},
    ToolText{1, 0, Property::Caption, 3744, "&File"},
    ToolText{1, 1, Property::Caption, 3711, "&Edit"},
    ToolText{1, 2, Property::Caption, 3712, "&Tools"},
    ToolText{1, 3, Property::Caption, 3713, "&Help"},
    ToolText{2, 0, Property::Caption, 3745, "&Hide window"},
    ToolText{2, 2, Property::Caption, 3715, "&Exit Quillamar Client"},
    ToolText{3, 0, Property::Caption, 3746, "&Contents..."},
    ToolText{3, 0, Property::ToolTip, 3747, "Display the help contents dialog"},
    ToolText{3, 2, Property::Caption, 3717, "About Quillamar Client"},
    ToolText{4, 0, Property::Caption, 3748, "&Copy selected entries"},
    ToolText{4, 0, Property::ToolTip, 3749, "Copies the selection and puts it on the clipboard"},
    ToolText{4, 2, Property::Caption, 3719, "&Delete all entries"},
    ToolText{4, 2, Property::ToolTip, 3720, "Deletes all entries in the list"},
    ToolText{4, 3, Property::Caption, 3722, "Select &all entries"},
    ToolText{4, 3, Property::ToolTip, 3723, "Selects the entire list"},
    ToolText{5, 0, Property::Caption, 3706, "Play Message"},
    ToolText{5, 1, Property::Caption, 3732, "Show Details"},
    ToolText{5, 3, Property::Caption, 3733, "&Options"},
    ToolText{5, 3, Property::ToolTip, 3734, "Set application options"},
    ToolText{6, 0, Property::Caption, 3751, "Play"},
    ToolText{6, 2, Property::Caption, 3732, "Show Details"},
};

constexpr std::array kBands{
    BandText{0, 3704, "Status"}, BandText{1, 3710, "Menu"}, BandText{2, 3738, "File"},
    BandText{3, 3739, "Help"},   BandText{4, 3740, "Edit"}, BandText{5, 3741, "Tools"},
};

std::string text(std::int32_t id, const char* english) {
    return resources::LoadLocalString(id, english);
}

// Buttons that show pictures only are known by these names to who hears the window.
void nameButtons(forms::Band& status) {
    status.Tools("miSStop").SetAccessibleName(forms::toQString(text(5030, "Stop")));
    status.Tools("miSPause").SetAccessibleName(forms::toQString(text(5031, "Pause")));
    status.Tools("miSRew").SetAccessibleName(forms::toQString(text(5032, "Rewind")));
    status.Tools("miSFwd").SetAccessibleName(forms::toQString(text(5033, "Fast forward")));
}

void setText(const forms::CommandBar& ab, const ToolText& entry) {
    forms::Tool& tool = ab.Bands(entry.band).Tools(entry.tool);
    const std::string value = text(entry.id, entry.english);
    if (entry.property == Property::Caption) {
        tool.SetCaption(value);
    } else {
        tool.SetToolTipText(value);
        tool.SetDescription(value);
    }
}

} // namespace

void LoadCaptions(errors::ErrorHandler& errorHandler, QWidget& window, forms::CommandBar& ab) {
    errors::Procedure proc{errorHandler, "frmMain", "LoadCaptions"};
    proc.step([&] { window.setWindowTitle(forms::toQString(text(105, "Quillamar Calls"))); });
    for (const ToolText& entry : kTools)
        proc.step([&] { setText(ab, entry); });
    for (const BandText& entry : kBands)
        proc.step([&] { ab.Bands(entry.band).SetCaption(text(entry.id, entry.english)); });
    proc.step([&] { nameButtons(ab.Bands(kBandStatus)); });
}

} // namespace app
