// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/Catalog.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/NameComparison.h"
#include "platform/jet/TableDefinitionReader.h"
#include "platform/jet/TableScan.h"

#include <algorithm>

namespace jet {
namespace {

constexpr std::string_view kCatalogName = "MSysObjects";

} // namespace

Catalog::Catalog(PageSource& source)
    : m_source(source),
      m_definition(TableDefinitionReader(source).read(format::catalog::kDefinitionPage, kCatalogName)),
      m_columns(CatalogColumns::find(m_definition, {source.name(), kCatalogName, m_definition.page()})) {}

CatalogEntry Catalog::find(std::string_view table) const {
    TableScan scan(m_source, m_definition, kCatalogName);
    while (scan.next()) {
        CatalogEntry entry = m_columns.entry(scan.row(), scan.position());
        if (!equalNames(entry.name, table) || !(entry.isTable() || entry.isLink()))
            continue;
        if (entry.isLink())
            scan.row().place().fail("the linked table " + entry.name + " is not supported");
        return entry;
    }
    throw basic::RuntimeError(basic::kProviderNoTable,
                              m_source.name() + ": there is no table " + std::string(table));
}

std::vector<CatalogEntry> Catalog::tables() const {
    std::vector<CatalogEntry> result;
    TableScan scan(m_source, m_definition, kCatalogName);
    while (scan.next()) {
        CatalogEntry entry = m_columns.entry(scan.row(), scan.position());
        if (entry.isTable())
            result.push_back(std::move(entry));
    }
    return result;
}

std::vector<CatalogEntry> Catalog::userTables() const {
    std::vector<CatalogEntry> result = tables();
    std::erase_if(result, [](const CatalogEntry& entry) { return entry.isSystem(); });
    return result;
}

} // namespace jet
