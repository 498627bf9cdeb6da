// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Writes a table's definition: lays out its logical buffer and spreads it over its chain of pages.
// Layout: docs/jet4-format.md, "Table definition".

#include "platform/jet/ByteBuilder.h"
#include "platform/jet/TableDefinition.h"
#include "platform/jet/WriteCache.h"

namespace jet {

// The definition's bytes. Columns and indexes come in the order of their lists; pages, counters and pointers
// are taken as they are.
Bytes encodeDefinition(const TableDefinition& table);

// How many pages that many bytes take.
std::size_t definitionPageCount(std::size_t bytes);

// Puts the definition on the pages named in `table.pages`, which are as many as it takes.
void storeDefinition(const TableDefinition& table, WriteCache& cache);

} // namespace jet
