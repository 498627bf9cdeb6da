// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexWriter.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>

namespace jet {

IndexWriter::IndexWriter(WriteCache& cache, PageAllocator& allocator, const TableDefinition& table,
                         std::size_t ordinal)
    : m_table(table), m_index(table.realIndexes[ordinal]), m_ordinal(ordinal),
      m_tree(cache, allocator, m_index, table.page()), m_uniqueEntries(m_index.uniqueEntries) {
    for (const IndexColumn& part : m_index.columns) {
        const Column* column = table.findColumn(part.number);
        if (column == nullptr)
            throw basic::RuntimeError(basic::kProviderFailure, cache.name() + ": index " + name() +
                                                                   " names a column that is not there");
        m_columns.push_back(static_cast<std::size_t>(column - table.columns.data()));
    }
}

const std::string& IndexWriter::name() const {
    static const std::string kUnnamed = "without a name";
    const auto found = std::ranges::find(m_table.logicalIndexes, m_ordinal, &LogicalIndex::realIndex);
    return found == m_table.logicalIndexes.end() ? kUnnamed : found->name;
}

void IndexWriter::refuse(std::string_view why) const {
    throw basic::RuntimeError(basic::kProviderIntegrity,
                              std::string(basic::errorText(basic::kProviderIntegrity)) + " (index " + name() +
                                  ": " + std::string(why) + ")");
}

std::optional<KeyBytes> IndexWriter::keyOf(std::span<const basic::Variant> values) {
    KeyBytes key;
    std::size_t nulls = 0;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const basic::Variant& value = values[m_columns[i]];
        nulls += basic::isNull(value) ? 1U : 0U;
        appendKeyPart(key, value, m_table.columns[m_columns[i]], m_index.columns[i].ascending);
    }
    if (nulls > 0 && (m_index.flags & format::realIndex::kRequired) != 0)
        refuse("Null is not allowed");
    const bool isNull = nulls == m_columns.size();
    if (isNull && m_index.ignoresNulls())
        return std::nullopt;
    m_tree.checkLength(key);
    if (m_index.isUnique() && !isNull && m_tree.contains(key))
        refuse("the value is there already");
    return key;
}

void IndexWriter::insert(const KeyBytes& key, RowPointer row) {
    if (m_index.isUnique() || !m_tree.contains(key))
        ++m_uniqueEntries;
    m_tree.insert(key, row);
}

} // namespace jet
