// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The small databases that fuzzing the reader begins with: each has one table that shows a part of the
// format, and hardly anything beside.

#include <string>

namespace demo {

// Writes them into an existing folder; a database that is there already is an error.
void writeSeedDatabases(const std::string& folder);

} // namespace demo
