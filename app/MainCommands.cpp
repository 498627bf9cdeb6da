// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainCommands.h"

#include "data/ListToClipBoard.h"

#include <string>

namespace app {
namespace {

constexpr std::string_view kOptions = "miVOptions";

} // namespace

MainCommands::MainCommands(const Parts& parts)
    : m_parts(parts), m_commands(parts.services.errorHandler),
      m_playMessage({parts.services.common, parts.services.messageBoxes, parts.list, parts.tabStrip,
                     parts.state, parts.player}),
      m_deleteAll({parts.services.common, parts.services.files, parts.services.messageBoxes, parts.tabStrip,
                   parts.state, parts.main, [this] { m_parts.player.StopPlay(); },
                   [this](std::int32_t ms) { m_parts.services.player.wait.PauseWithEvents(ms); }}),
      m_editOptions({parts.services.errorHandler, parts.services.common, parts.services.options, parts.window,
                     parts.state, parts.main}),
      m_helpCommands(
          {parts.services.errorHandler, parts.services.messageBoxes, parts.services.help, parts.window}) {
    addFileCommands();
    addPlayerCommands();
    addEditCommands();
    addToolsAndHelpCommands();
}

void MainCommands::addFileCommands() {
    m_commands.add("miFExit", [this] { m_parts.main.unload(); });
    m_commands.add("miFHide", [this] { m_parts.main.hideWindow(); });
}

void MainCommands::addPlayerCommands() {
    m_commands.add("miSPlay", [this](errors::Procedure& proc) { m_playMessage(proc); });
    m_commands.add("miSPause", [this] { m_parts.player.Pause(); });
    m_commands.add("miSStop", [this] { m_parts.player.StopPlay(); });
    m_commands.add("miSFwd", [this] { m_parts.player.Forward(); });
    m_commands.add("miSRew", [this] { m_parts.player.Backward(); });
}

void MainCommands::addEditCommands() {
    m_commands.add("miECopy", [this] {
        data::ListToClipBoard(m_parts.services.errorHandler, m_parts.list, m_parts.services.clipboard);
    });
    m_commands.add("miEDetails", [this] { m_parts.details.ShowDetails(); });
    m_commands.add("miEClear", [this](errors::Procedure& proc) { m_deleteAll(proc); });
    m_commands.add("miESelectAll", [this] { selectAll(); });
}

void MainCommands::addToolsAndHelpCommands() {
    m_commands.add(std::string(kOptions), [this] { ShowOptions(); });
    m_commands.add("miHAbout", [this] { m_helpCommands.showAbout(); });
    m_commands.add("miHContents", [this] { m_helpCommands.ShowHelp(); });
}

void MainCommands::ab_ToolClick(std::string_view toolName) {
    const ShareAccess& access = m_parts.services.shareAccess;
    access.userActs();
    if (toolName == kOptions)
        access.userLogsOn();
    access.afterWaiting([this, name = std::string(toolName)] { m_commands.ab_ToolClick(name); });
}

void MainCommands::selectAll() {
    auto& items = m_parts.list.ListItems();
    const int count = items.Count();
    for (int index = 1; index <= count; ++index)
        items.Item(index).SetSelected(true);
}

} // namespace app
