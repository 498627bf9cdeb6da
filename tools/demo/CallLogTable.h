// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The tables of a mailbox's database as the server lays them out, and the row of a call.

#include "platform/jet/TableSpec.h"
#include "tools/demo/DemoCalls.h"

#include <vector>

namespace demo {

jet::TableSpec callLogTable();
jet::TableSpec mailboxInfoTable();

// In the order of the columns; the ID is left to the database.
std::vector<basic::Variant> callLogRow(const Call& call);

} // namespace demo
