// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LoadCaptions.h"

#include "app/CommandBarLayout.h"
#include "errors/Procedure.h"
#include "resources/LocalText.h"
#include "resources/StringTable.h"

#include <array>
#include <string>

namespace app {
namespace {

using resources::localText;
using resources::TextEntry;

enum class Property { Caption, ToolTip };

constexpr int kBandItself = -1;

struct Assignment {
    int band;
    int tool; // separators count
    Property property;
    TextEntry text;
};

constexpr Assignment caption(int band, TextEntry text) {
    return {band, kBandItself, Property::Caption, text};
}

constexpr Assignment caption(int band, int tool, TextEntry text) {
    return {band, tool, Property::Caption, text};
}

constexpr Assignment toolTip(int band, int tool, TextEntry text) {
    return {band, tool, Property::ToolTip, text};
}

// In the order in which they are made. A tool or a band that is not listed keeps the English text it was laid
// out with. A tool tip is the description as well.
constexpr std::array kAssignments{
    caption(kBandStatus, 0, TextEntry{3743, "Tool7"}),
    caption(kBandStatus, 2, TextEntry{3706, "Play Message"}),
    toolTip(kBandStatus, 2, TextEntry{3736, "Plays the selected message"}),
    caption(kBandStatus, TextEntry{3704, "Status"}),
    caption(kBandMenu, 0, TextEntry{3744, "&File"}),
    caption(kBandMenu, 1, TextEntry{3711, "&Edit"}),
    caption(kBandMenu, 2, TextEntry{3712, "&Tools"}),
    caption(kBandMenu, 3, TextEntry{3713, "&Help"}),
    caption(kBandMenu, TextEntry{3710, "Menu"}),
    caption(kBandFile, 0, TextEntry{3745, "&Hide window"}),
    caption(kBandFile, 2, TextEntry{3715, "&Exit Quillamar Client"}),
    caption(kBandFile, TextEntry{3738, "File"}),
    caption(kBandHelp, 0, TextEntry{3746, "&Contents..."}),
    toolTip(kBandHelp, 0, TextEntry{3747, "Display the help contents dialog"}),
    caption(kBandHelp, 2, TextEntry{3717, "About Quillamar Client"}),
    caption(kBandHelp, TextEntry{3739, "Help"}),
    caption(kBandEdit, 0, TextEntry{3748, "&Copy selected entries"}),
    toolTip(kBandEdit, 0, TextEntry{3749, "Copies the selection and puts it on the clipboard"}),
    caption(kBandEdit, 2, TextEntry{3719, "&Delete all entries"}),
    toolTip(kBandEdit, 2, TextEntry{3720, "Deletes all entries in the list"}),
    caption(kBandEdit, 3, TextEntry{3722, "Select &all entries"}),
    toolTip(kBandEdit, 3, TextEntry{3723, "Selects the entire list"}),
    caption(kBandEdit, TextEntry{3740, "Edit"}),
    caption(kBandTools, 0, TextEntry{3706, "Play Message"}),
    caption(kBandTools, 1, TextEntry{3732, "Show Details"}),
    caption(kBandTools, 3, TextEntry{3733, "&Options"}),
    toolTip(kBandTools, 3, TextEntry{3734, "Set application options"}),
    caption(kBandTools, TextEntry{3741, "Tools"}),
    caption(kBandPopup, 0, TextEntry{3751, "Play"}),
    caption(kBandPopup, 2, TextEntry{3732, "Show Details"}),
};

void assign(const forms::CommandBar& ab, const Assignment& entry) {
    forms::Band& band = ab.Bands(entry.band);
    const std::string text = resources::loadText(entry.text);
    if (entry.tool == kBandItself) {
        band.SetCaption(text);
    } else if (entry.property == Property::Caption) {
        band.Tools(entry.tool).SetCaption(text);
    } else {
        band.Tools(entry.tool).SetToolTipText(text);
        band.Tools(entry.tool).SetDescription(text);
    }
}

// Buttons that show pictures only are known by these names to who hears the window.
void nameButtons(forms::Band& status) {
    status.Tools("miSStop").SetAccessibleName(localText(5030, "Stop"));
    status.Tools("miSPause").SetAccessibleName(localText(5031, "Pause"));
    status.Tools("miSPlay").SetAccessibleName(localText(3706, "Play Message"));
    status.Tools("miSRew").SetAccessibleName(localText(5032, "Rewind"));
    status.Tools("miSFwd").SetAccessibleName(localText(5033, "Fast forward"));
}

} // namespace

void LoadCaptions(errors::ErrorHandler& errorHandler, QWidget& window, forms::CommandBar& ab) {
    errors::Procedure proc{errorHandler, "frmMain", "LoadCaptions"};
    proc.step([&] { window.setWindowTitle(localText(105, "Quillamar Calls")); });
    for (const Assignment& entry : kAssignments)
        proc.step([&] { assign(ab, entry); });
    proc.step([&] { nameButtons(ab.Bands(kBandStatus)); });
}

} // namespace app
