// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The player's five buttons at a glance, in the order Play, Stop, Pause, Rewind, Forward: '+' enabled, 'x'
// enabled and pressed, '-' disabled, 'X' disabled and pressed.

#include "app/CommandBarLayout.h"
#include "platform/forms/CommandBar.h"

#include <string>

namespace app {

inline std::string playerButtons(const forms::CommandBar& ab) {
    std::string text;
    for (const char* name : {"miSPlay", "miSStop", "miSPause", "miSRew", "miSFwd"}) {
        const forms::Tool& tool = ab.Bands(kBandStatus).Tools(name);
        text += tool.Enabled() ? (tool.Checked() ? 'x' : '+') : (tool.Checked() ? 'X' : '-');
    }
    return text;
}

} // namespace app
