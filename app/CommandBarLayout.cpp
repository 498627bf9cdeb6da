// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandBarLayout.h"

#include "resources/Icons.h"

namespace app {
namespace {

using forms::Band;
using forms::BandKind;
using forms::CommandBar;
using resources::PlayerIcon;
using resources::playerIcon;

// A button that shows a picture only. Nothing can be played before there is a list.
void addButton(Band& band, const char* name, const char* caption, PlayerIcon picture) {
    forms::Tool& tool = band.AddTool(name, caption);
    tool.SetPicture(playerIcon(picture));
    tool.SetEnabled(false);
}

void addStatus(CommandBar& ab) {
    Band& band = ab.AddBand("Status", "Status", BandKind::Toolbar);
    addButton(band, "miSStop", "Tool7", PlayerIcon::Stop);
    addButton(band, "miSPause", "Tool9", PlayerIcon::Pause);
    addButton(band, "miSPlay", "Play Message", PlayerIcon::Play);
    addButton(band, "miSRew", "Tool11", PlayerIcon::Rewind);
    addButton(band, "miSFwd", "Tool10", PlayerIcon::Forward);
    band.AddTool("miSProgress", "Tool13");
    ab.ShowDescriptionsIn(band.AddTool("Tool14", "Tool14"));
}

void addMenu(CommandBar& ab) {
    Band& band = ab.AddBand("Menu", "Menu", BandKind::MenuBar);
    band.AddTool("miFile", "&File").SetSubBand("mnuFile");
    band.AddTool("miEdit", "&Edit").SetSubBand("mnuEdit");
    band.AddTool("miTools", "&Tools").SetSubBand("mnuTools");
    band.AddTool("miHelp", "&Help").SetSubBand("mnuHelp");
}

void addFileMenu(CommandBar& ab) {
    Band& band = ab.AddBand("mnuFile", "File", BandKind::DropDown);
    band.AddTool("miFHide");
    band.AddSeparator();
    band.AddTool("miFExit");
}

void addHelpMenu(CommandBar& ab) {
    Band& band = ab.AddBand("mnuHelp", "Help", BandKind::DropDown);
    band.AddTool("miHContents");
    band.AddSeparator();
    band.AddTool("miHAbout");
}

void addEditMenu(CommandBar& ab) {
    Band& band = ab.AddBand("mnuEdit", "Edit", BandKind::DropDown);
    band.AddTool("miECopy");
    band.AddSeparator();
    band.AddTool("miEClear");
    band.AddTool("miESelectAll");
    band.AddSeparator();
    band.AddTool("miEFind", "&Find...").SetDescription("Finds the specified text");
    band.AddTool("miEFindNext", "Find &Next").SetDescription("Repeats the last find operation");
}

void addToolsMenu(CommandBar& ab) {
    Band& band = ab.AddBand("mnuTools", "Tools", BandKind::DropDown);
    band.AddTool("miSPlay");
    band.AddTool("miEDetails");
    band.AddSeparator();
    band.AddTool("miVOptions");
}

void addContextMenu(CommandBar& ab) {
    Band& band = ab.AddBand("mnuPopup", "PopUp", BandKind::ContextMenu);
    band.AddTool("miSPlay");
    band.AddSeparator();
    band.AddTool("miEDetails");
}

} // namespace

void layOutCommandBar(CommandBar& ab) {
    addStatus(ab);
    addMenu(ab);
    addFileMenu(ab);
    addHelpMenu(ab);
    addEditMenu(ab);
    addToolsMenu(ab);
    addContextMenu(ab);
}

} // namespace app
