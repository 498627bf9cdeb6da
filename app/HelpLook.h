// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the help window is made of in this program: its texts in the program's language, its pictures, and the
// ways out of it. User-interface thread.

#include "platform/shell/help/HelpBook.h"
#include "platform/shell/help/HelpSurroundings.h"

namespace app {

shell::help::HelpSurroundings helpSurroundings();
// Where the pages in the program's language are in the help file.
shell::help::HelpLayout helpLayout();

} // namespace app
