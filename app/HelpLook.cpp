// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/HelpLook.h"

#include "platform/shell/help/DesktopHelp.h"
#include "resources/Icons.h"
#include "resources/LocalText.h"
#include "resources/StringTable.h"

namespace app {

using resources::helpIcon;
using resources::HelpIcon;
using resources::localText;

shell::help::HelpSurroundings helpSurroundings() {
    return {.texts = {.title = localText(5120, "Quillamar Client Help"),
                      .contents = localText(5121, "Contents"),
                      .search = localText(5122, "Search"),
                      .found = localText(5123, "Pages found"),
                      .nothingFound = localText(5124, "Nothing found"),
                      .back = localText(5125, "Back"),
                      .forward = localText(5126, "Forward"),
                      .start = localText(5127, "First page"),
                      .print = localText(5128, "Print")},
            .icons = {.window = resources::programIcon(),
                      .back = helpIcon(HelpIcon::Back),
                      .forward = helpIcon(HelpIcon::Forward),
                      .start = helpIcon(HelpIcon::Start),
                      .print = helpIcon(HelpIcon::Print)},
            .openOutside = shell::help::openWithTheDesktop,
            .print = shell::help::printWithDialog};
}

shell::help::HelpLayout helpLayout() {
    const bool german = resources::language() == resources::Language::German;
    return {.folder = german ? QStringLiteral("de") : QString(),
            .contents = QStringLiteral("Client_Contents.hhc")};
}

} // namespace app
