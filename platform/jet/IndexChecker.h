// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Walks the tree of one index and holds it against the rules: page types and owners, the order of entries
// within and across pages, a node's entries against its children, the chain of leaves both ways, a pointer to
// a live row in every entry and no row twice. The first breach is thrown as RuntimeError kProviderFailure.
// Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/IndexPage.h"
#include "platform/jet/TableDefinition.h"
#include "platform/jet/UsageMap.h"

#include <string_view>
#include <vector>

namespace jet {

class IndexChecker {
public:
    // `rows` are the table's live rows, ascending.
    IndexChecker(PageSource& source, const TableDefinition& table, std::string_view tableName,
                 const std::vector<RowPointer>& rows)
        : m_source(source), m_table(table), m_tableName(tableName), m_rows(rows) {}

    // `pages` is the index's usage map. Answers the number of entries.
    std::size_t check(const RealIndex& index, const UsageMap& pages);

private:
    struct Entry {
        std::vector<std::byte> key;
        RowPointer row;
        // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the defaulted operator for a null pointer
        auto operator<=>(const Entry&) const = default;
    };

    void walk(PageNumber number, std::size_t level);
    void walkNode(IndexPage& page, std::size_t level);
    void walkLeaf(IndexPage& page);
    void takeEntry(const IndexPage& page);
    void checkUnique(const IndexPage& page) const;
    void checkLeafChain();
    void checkRows(const Place& place) const;
    Place placeOf(PageNumber page) const noexcept { return {m_source.name(), m_tableName, page}; }

    PageSource& m_source;
    const TableDefinition& m_table;
    std::string_view m_tableName;
    const std::vector<RowPointer>& m_rows;
    const RealIndex* m_index = nullptr;
    const UsageMap* m_pages = nullptr;
    std::vector<PageNumber> m_visited;
    std::vector<PageNumber> m_leaves;
    std::vector<RowPointer> m_found;
    Entry m_last;
};

} // namespace jet
