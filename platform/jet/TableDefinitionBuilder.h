// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Makes a definition out of columns and indexes: numbers the columns, gives each its place in a row, and
// checks what a definition can hold. Pages and maps are still to be given (placeTable).

#include "platform/jet/TableDefinition.h"
#include "platform/jet/TableSpec.h"

namespace jet {

// A user table's definition. kProviderSyntax with what is wrong when the format cannot hold it.
TableDefinition defineTable(const TableSpec& spec);

// Gives the columns, taken by number, their places in a row, and lists the long-value columns.
void layOutColumns(TableDefinition& table);

} // namespace jet
