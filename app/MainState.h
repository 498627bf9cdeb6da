// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the parts of the main window share: the configuration, the two database connections of the call list,
// and the window's flags and counters. Owned by frmMain, user-interface thread only. The configuration is
// null before start-up has loaded it and after the unload has released it; whoever lets events run keeps a
// copy of the pointer and looks here again afterwards.

#include "data/clsConfig.h"
#include "platform/jet/Connection.h"

#include <cstdint>
#include <memory>

namespace app {

struct MainState {
    std::shared_ptr<data::clsConfig> config;
    std::shared_ptr<jet::Connection> listConnection;    // while the list loads, null otherwise
    std::shared_ptr<jet::Connection> currentConnection; // of the selected mailbox, opened when first needed

    bool exitRequested = false;  // the next tick unloads the window
    bool redock = false;         // the next tick puts the player back into the status band
    bool firstPoll = false;      // the next poll learns the counts and announces nothing
    bool notConnected = false;   // the list says that there is no connection
    bool nobodyAnswered = false; // no mailbox at all answered the first poll
    std::int32_t newCallTotal = 0;

    // Changes with every InitData and with the unload: a procedure that let events run and finds another
    // number works on a configuration that is gone, and ends.
    std::uint32_t generation = 0;
};

} // namespace app
