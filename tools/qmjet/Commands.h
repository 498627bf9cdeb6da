// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the program can do with one database file. Failures are RuntimeErrors.

#include "tools/qmjet/Output.h"

#include <string>

namespace qmjet {

// Names of the tables, one a line: the user's, or those of the system as well.
void listTables(const std::string& path, bool withSystem, Output& output);
// Name, type and size of each column as CSV.
void listColumns(const std::string& path, const std::string& table, Output& output);
void countRows(const std::string& path, const std::string& table, Output& output);
void printRows(const std::string& path, const std::string& table, Output& output);
// Executes a statement and prints its rows as CSV, with a header line.
void execute(const std::string& path, const std::string& statement, Output& output);
// Reads everything and throws the first inconsistency.
void check(const std::string& path, Output& output);

} // namespace qmjet
