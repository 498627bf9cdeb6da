// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The table of a database as libmdb opens it: the public library we measure ourselves beside. Opened by the
// constructor, closed by the destructor; std::runtime_error when it cannot be read.

#include <cstddef>
#include <memory>
#include <string>

namespace bench {

class LibmdbTable {
public:
    LibmdbTable(const std::string& path, std::string table);
    ~LibmdbTable();
    LibmdbTable(const LibmdbTable&) = delete;
    LibmdbTable& operator=(const LibmdbTable&) = delete;

    std::size_t rowCount() const;
    // Reads every column of every row as text; answers the bytes of it all.
    std::size_t readAll();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace bench
