// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Creates databases and tables. Both are written whole and synchronised when the call returns; a table
// appears in the catalog with the last write, so that a failure before leaves the database as it was, but for
// pages nobody uses. Errors: RuntimeErrors of the file; kProviderSyntax for a table the format cannot hold;
// kProviderIntegrity when there is a table of that name. See docs/jet4-format.md, "A new database".

#include "platform/basic/Variant.h"
#include "platform/jet/TableSpec.h"
#include "platform/share/File.h"

namespace jet {

// Fills an empty file. `created` is local wall-clock time and goes into the catalog.
void createDatabase(share::File& file, const basic::Date& created);

void createTable(share::File& file, const TableSpec& spec, const basic::Date& created);

} // namespace jet
