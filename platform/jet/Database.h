// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One open database for reading: its header, pages and tables. Opening reads page 0 and refuses anything that
// is no Jet 4 database; nothing else is kept between two calls, so that each sees the file as it is then.
// Whether it was being written meanwhile is the caller's question to ReadGuard. Owns the file. One thread at
// a time. Pages read by count(): the header's at opening, then with a good hint the catalog's row and the
// beginning of the table's definition; without one also the catalog's definition and map. A definition that
// says 0 rows costs the table's map and pages on top.

#include "platform/jet/CatalogHint.h"
#include "platform/jet/DatabaseHeader.h"
#include "platform/jet/PageReader.h"
#include "platform/jet/TableDefinition.h"
#include "platform/share/File.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace jet {

class Database {
public:
    explicit Database(std::unique_ptr<share::File> file);

    const DatabaseHeader& header() const noexcept { return m_header; }
    // As they were when the file was opened.
    const CommitWords& commitWords() const noexcept { return m_header.commitWords; }
    PageReader& pages() noexcept { return m_pages; }
    share::File& file() noexcept { return *m_file; }

    // A hint that is handed in is used if it holds, and filled anew if not. Errors as Catalog::find.
    CatalogEntry findTable(std::string_view table, CatalogHint* hint = nullptr);
    TableDefinition definition(std::string_view table, CatalogHint* hint = nullptr);
    std::uint32_t count(std::string_view table, CatalogHint* hint = nullptr);

private:
    std::unique_ptr<share::File> m_file;
    DatabaseHeader m_header;
    PageReader m_pages;
};

} // namespace jet
