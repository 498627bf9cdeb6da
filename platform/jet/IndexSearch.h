// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Finds the rows with one key in an index, from its root down, a few pages whatever the size of the table.
// What it reads is checked as everything that comes from a file: pages of another owner, too many levels and
// entries out of order are RuntimeError kProviderFailure. Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/IndexNode.h"
#include "platform/jet/PageSource.h"
#include "platform/jet/TableDefinition.h"

#include <string_view>
#include <vector>

namespace jet {

class IndexSearch {
public:
    // Source, definition and name must outlive the search.
    IndexSearch(PageSource& source, const TableDefinition& table, std::string_view tableName)
        : m_source(source), m_table(table), m_tableName(tableName) {}

    // The rows whose keys begin with `key`, in the index's order.
    std::vector<RowPointer> find(const RealIndex& index, const KeyBytes& key);

private:
    IndexNode node(PageNumber page) const;
    PageNumber leafOf(PageNumber root, const KeyBytes& key) const;
    Place placeOf(PageNumber page) const noexcept { return {m_source.name(), m_tableName, page}; }

    PageSource& m_source;
    const TableDefinition& m_table;
    std::string_view m_tableName;
};

} // namespace jet
