// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The pages that hold a table's rows and long values: what a PageSnapshot needs so that every row can be
// decoded from it without the file.

#include "platform/jet/PageSource.h"
#include "platform/jet/TableDefinition.h"

#include <string_view>
#include <vector>

namespace jet {

// The page with the map of the rows' pages included. All pages of the file when a column's long values are
// not listed, as some writers leave them.
std::vector<PageNumber> tablePages(PageSource& source, const TableDefinition& table,
                                   std::string_view tableName);

} // namespace jet
