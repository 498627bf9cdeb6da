// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a table to be created looks like. Plain data; TableBuilder checks it and refuses what a database of
// this format cannot hold. Columns and indexes are created in the order given.

#include "platform/jet/TableDefinition.h"

#include <cstdint>
#include <string>
#include <vector>

namespace jet {

struct ColumnSpec {
    std::string name;
    ColumnType type = ColumnType::Long;
    std::uint16_t size = 0;  // text: characters (1 to 255); binary: bytes (1 to 510); no meaning for others
    bool autonumber = false; // Long only, one column of a table
    bool compressed = false; // text and memo: Latin-1 text takes one byte a character
    std::uint8_t precision = 18; // numeric only: digits, 1 to 28
    std::uint8_t scale = 0;      // numeric only: of them behind the point
};

struct IndexColumnSpec {
    std::string column;
    bool ascending = true;
};

// A primary key is unique and admits no Null, whatever the other flags say.
struct IndexSpec {
    std::string name;
    std::vector<IndexColumnSpec> columns;
    bool primaryKey = false;
    bool unique = false;
    bool ignoresNulls = false; // rows that are Null in all of its columns have no entry
};

struct TableSpec {
    std::string name; // also a key of the catalog's index: ASCII letters, digits, blank, underscore, point
    std::vector<ColumnSpec> columns;
    std::vector<IndexSpec> indexes;
};

} // namespace jet
