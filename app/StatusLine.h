// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The list as a single line of text: one column without header, one row without key. So the list tells what
// it is doing or why it shows no calls.

#include "platform/forms/ListView.h"

#include <string_view>

namespace app {

// Clears the columns and the rows and prepares the one column.
void beginStatusLine(forms::ListView& list);
// Adds the line.
void addStatusLine(forms::ListView& list, std::string_view text);
// The line of a list without a server.
void addNotConnectedLine(forms::ListView& list);

} // namespace app
