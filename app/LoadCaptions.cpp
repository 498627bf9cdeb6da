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

// In the order in which they are made. A tool or a band that is not listed keeps the English text it was laid
// out with. A tool tip is the description as well.
constexpr std::array kAssignments{
    Assignment{kBandStatus, 0, Property::Caption, TextEntry{3743, "Tool7"}},
    Assignment{kBandStatus, 2, Property::Caption, TextEntry{3706, "Play Message"}},
    Assignment{kBandStatus, 2, Property::ToolTip, TextEntry{3736, "Plays the selected message"}},
    Assignment{kBandStatus, kBandItself, Property::Caption, TextEntry{3704, "Status"}},
    Assignment{kBandMenu, 0, Property::Caption, TextEntry{3744, "&File"}},
    Assignment{kBandMenu, 1, Property::Caption, TextEntry{3711, "&Edit"}},
    Assignment{kBandMenu, 2, Property::Caption, TextEntry{3712, "&Tools"}},
    Assignment{kBandMenu, 3, Property::Caption, TextEntry{3713, "&Help"}},
    Assignment{kBandMenu, kBandItself, Property::Caption, TextEntry{3710, "Menu"}},
    Assignment{kBandFile, 0, Property::Caption, TextEntry{3745, "&Hide window"}},
    Assignment{kBandFile, 2, Property::Caption, TextEntry{3715, "&Exit Quillamar Client"}},
    Assignment{kBandFile, kBandItself, Property::Caption, TextEntry{3738, "File"}},
    Assignment{kBandHelp, 0, Property::Caption, TextEntry{3746, "&Contents..."}},
    Assignment{kBandHelp, 0, Property::ToolTip, TextEntry{3747, "Display the help contents dialog"}},
    Assignment{kBandHelp, 2, Property::Caption, TextEntry{3717, "About Quillamar Client"}},
    Assignment{kBandHelp, kBandItself, Property::Caption, TextEntry{3739, "Help"}},
    Assignment{kBandEdit, 0, Property::Caption, TextEntry{3748, "&Copy selected entries"}},
    Assignment{kBandEdit, 0, Property::ToolTip,
               TextEntry{3749, "Copies the selection and puts it on the clipboard"}},
    Assignment{kBandEdit, 2, Property::Caption, TextEntry{3719, "&Delete all entries"}},
    Assignment{kBandEdit, 2, Property::ToolTip, TextEntry{3720, "Deletes all entries in the list"}},
    Assignment{kBandEdit, 3, Property::Caption, TextEntry{3722, "Select &all entries"}},
    Assignment{kBandEdit, 3, Property::ToolTip, TextEntry{3723, "Selects the entire list"}},
    Assignment{kBandEdit, kBandItself, Property::Caption, TextEntry{3740, "Edit"}},
    Assignment{kBandTools, 0, Property::Caption, TextEntry{3706, "Play Message"}},
    Assignment{kBandTools, 1, Property::Caption, TextEntry{3732, "Show Details"}},
    Assignment{kBandTools, 3, Property::Caption, TextEntry{3733, "&Options"}},
    Assignment{kBandTools, 3, Property::ToolTip, TextEntry{3734, "Set application options"}},
    Assignment{kBandTools, kBandItself, Property::Caption, TextEntry{3741, "Tools"}},
    Assignment{kBandPopup, 0, Property::Caption, TextEntry{3751, "Play"}},
    Assignment{kBandPopup, 2, Property::Caption, TextEntry{3732, "Show Details"}},
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
