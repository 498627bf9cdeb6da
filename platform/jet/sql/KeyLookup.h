// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Rows by way of an index, for a condition that compares a text column with a literal. What an index answers
// is where to look, not what is there: the condition is still to be tested on each row.

#include "platform/jet/PageSource.h"
#include "platform/jet/TableDefinition.h"
#include "platform/jet/sql/Expression.h"

#include <string_view>
#include <vector>

namespace jet::sql {

struct IndexedText {
    const RealIndex* index = nullptr; // null: there is none to use
    const Column* column = nullptr;
    const basic::Variant* value = nullptr;
};

// For a bound condition column = 'text', either way round, over the first column of an index.
IndexedText indexedText(const TableDefinition& table, const Expression& condition);

// Where the rows with that text are, as a scan would meet them. kProviderFailure for a damaged index and for
// a text whose key is not known.
std::vector<RowPointer> rowsByKey(PageSource& source, const TableDefinition& table,
                                  std::string_view tableName, const IndexedText& wanted);

} // namespace jet::sql
