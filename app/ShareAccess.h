// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the main window needs to know of the waits for servers. The defaults are those of a program whose
// shares are all folders of this machine: nobody ever waits.

#include "app/CountsAhead.h"

#include <functional>

namespace app {

struct ShareAccess {
    // Nothing that needs a share may begin while somebody further up the stack waits for a server: runs the
    // work now or when that wait is over.
    std::function<void(std::function<void()>)> afterWaiting = [](const std::function<void()>& work) {
        work();
    };
    // The user wants something now: a server that is left alone for a while is tried at once.
    std::function<void()> userActs = [] {};
    // The user looks after the settings: a user whom a server refused is tried again.
    std::function<void()> userLogsOn = [] {};
    // The program ends and waits for nobody.
    std::function<void()> endWaits = [] {};
    CountsAhead* countsAhead = nullptr; // null: counts are asked for one by one
};

} // namespace app
