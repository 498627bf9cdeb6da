// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One index of a table as rows are inserted: makes the key of a row, refuses what the index forbids, and
// keeps the tree. What is refused is refused before anything changes.

#include "platform/basic/Variant.h"
#include "platform/jet/IndexTree.h"
#include "platform/jet/TableDefinition.h"

#include <optional>
#include <span>

namespace jet {

class IndexWriter {
public:
    // `table` must outlive the writer; `ordinal` is the place among its real indexes.
    IndexWriter(WriteCache& cache, PageAllocator& allocator, const TableDefinition& table,
                std::size_t ordinal);

    // The key of a row, `values` in the order of the table's columns; none when the index leaves the row out.
    // kProviderIntegrity when the key is there already or Null where the index admits none.
    std::optional<KeyBytes> keyOf(std::span<const basic::Variant> values);
    void insert(const KeyBytes& key, RowPointer row);
    void store() { m_tree.store(); }

    std::uint32_t uniqueEntries() const noexcept { return m_uniqueEntries; }
    std::size_t statisticsOffset() const noexcept { return m_index.statisticsOffset; }

private:
    const std::string& name() const;
    [[noreturn]] void refuse(std::string_view why) const;

    const TableDefinition& m_table;
    const RealIndex& m_index;
    std::size_t m_ordinal;
    std::vector<std::size_t> m_columns; // places among the table's columns
    IndexTree m_tree;
    std::uint32_t m_uniqueEntries;
};

} // namespace jet
