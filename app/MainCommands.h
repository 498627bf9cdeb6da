// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The table of the main window's commands: which tool of the command bar does what. It owns the commands that
// are more than one call of another part. What it is given must outlive it; user-interface thread.

#include "app/CallDetails.h"
#include "app/Commands.h"
#include "app/DeleteAll.h"
#include "app/EditOptions.h"
#include "app/HelpCommands.h"
#include "app/MainProcedures.h"
#include "app/MainServices.h"
#include "app/MainState.h"
#include "app/PlayMessage.h"
#include "audio/ctlAudio.h"
#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"

#include <string_view>

namespace app {

class MainCommands {
public:
    struct Parts {
        const MainServices& services;
        QWidget& window;
        forms::ListView& list;
        forms::TabStrip& tabStrip;
        MainState& state;
        MainProcedures& main;
        CallDetails& details;
        audio::ctlAudio& player;
    };

    explicit MainCommands(const Parts& parts);

    // Runs the tool's command. One that comes while a server is waited for (from the tray's menu: the window
    // takes none) runs after.
    void ab_ToolClick(std::string_view toolName);
    void ShowOptions() { m_editOptions.ShowOptions(); }

private:
    void addFileCommands();
    void addPlayerCommands();
    void addEditCommands();
    void addToolsAndHelpCommands();
    void selectAll();

    Parts m_parts;
    Commands m_commands;
    PlayMessage m_playMessage;
    DeleteAll m_deleteAll;
    EditOptions m_editOptions;
    HelpCommands m_helpCommands;
};

} // namespace app
