// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Database.h"

#include "platform/jet/Catalog.h"
#include "platform/jet/RowCount.h"
#include "platform/jet/TableDefinitionReader.h"

#include <array>
#include <utility>

namespace jet {

Database::Database(std::unique_ptr<share::File> file)
    : m_file(std::move(file)), m_header(DatabaseHeader::read(*m_file)),
      m_pages(*m_file, m_header.databaseKey) {}

CatalogEntry Database::findTable(std::string_view table, CatalogHint* hint) {
    if (hint != nullptr) {
        if (auto known = hint->check(m_pages, m_header, table))
            return *known;
    }
    const Catalog catalog(m_pages);
    CatalogEntry entry = catalog.find(table);
    if (hint != nullptr)
        *hint = {m_header.creationStamp, catalog.columns(), entry};
    return entry;
}

TableDefinition Database::definition(std::string_view table, CatalogHint* hint) {
    return TableDefinitionReader(m_pages).read(findTable(table, hint).definitionPage(), table);
}

std::uint32_t Database::count(std::string_view table, CatalogHint* hint) {
    const PageNumber page = findTable(table, hint).definitionPage();
    std::array<std::byte, format::definition::kFixedSize> head{};
    m_pages.readStart(page, head);
    return countRows(m_pages, TableHead::parse(head, {m_pages.name(), table, page}), table);
}

} // namespace jet
