// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The panels of an X11 desktop: managed windows that reserve space or say that they are docks, and docks that
// no window manager lists. Read afresh on each call, nothing is kept. A window that vanishes meanwhile is
// left out.

#include "platform/shell/TaskbarGeometry.h"

#include <xcb/xcb.h>

#include <vector>

namespace shell {

struct X11Panels {
    int rootWidth = 0;
    int rootHeight = 0;
    std::vector<Panel> panels;
};

// Empty when the root window cannot be read.
X11Panels readX11Panels(xcb_connection_t* connection, xcb_window_t root);

} // namespace shell
