// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/LibmdbTable.h"

#include <mdbtools.h>

#include <array>
#include <stdexcept>
#include <vector>

namespace bench {

namespace {

struct CloseHandle {
    void operator()(MdbHandle* handle) const { mdb_close(handle); }
};
struct FreeTable {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};

} // namespace

struct LibmdbTable::Parts {
    std::unique_ptr<MdbHandle, CloseHandle> handle;
    std::unique_ptr<MdbTableDef, FreeTable> table;
};

LibmdbTable::LibmdbTable(const std::string& path, std::string table) : m_parts(std::make_unique<Parts>()) {
    m_parts->handle.reset(mdb_open(path.c_str(), MDB_NOFLAGS));
    if (!m_parts->handle)
        throw std::runtime_error("libmdb does not open " + path);
    m_parts->table.reset(mdb_read_table_by_name(m_parts->handle.get(), table.data(), MDB_TABLE));
    if (!m_parts->table)
        throw std::runtime_error("libmdb does not find the table " + table);
}

LibmdbTable::~LibmdbTable() = default;

std::size_t LibmdbTable::rowCount() const {
    return m_parts->table->num_rows;
}

std::size_t LibmdbTable::readAll() {
    MdbTableDef* table = m_parts->table.get();
    mdb_read_columns(table);
    std::vector<std::vector<char>> texts(table->num_cols, std::vector<char>(MDB_BIND_SIZE));
    std::vector<int> lengths(table->num_cols);
    for (unsigned column = 0; column < table->num_cols; ++column)
        mdb_bind_column(table, static_cast<int>(column) + 1, texts[column].data(), &lengths[column]);
    mdb_rewind_table(table);
    std::size_t total = 0;
    while (mdb_fetch_row(table) != 0) {
        for (const int length : lengths)
            total += static_cast<std::size_t>(length);
    }
    return total;
}

} // namespace bench
