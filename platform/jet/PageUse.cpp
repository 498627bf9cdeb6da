// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageUse.h"

#include "platform/jet/Catalog.h"
#include "platform/jet/TableContents.h"
#include "platform/jet/TableDefinitionReader.h"

namespace jet {

using namespace format;

PageUse::PageUse(PageSource& source, PageNumber definitionPage)
    : m_source(source),
      m_freePages(UsageMap::read(source, {usageMap::kGlobalPage, usageMap::kGlobalRow}, "free pages")),
      m_isUsed(source.pageCount(), false) {
    add(0);
    add(usageMap::kGlobalPage);
    for (const PageNumber page : m_freePages.bitmapPages())
        add(page);
    for (const CatalogEntry& table : Catalog(source).tables())
        if (table.definitionPage() != definitionPage)
            addTable(table.definitionPage(), table.name);
}

void PageUse::addTable(PageNumber definitionPage, std::string_view name) {
    const TableDefinition table = TableDefinitionReader(m_source).read(definitionPage, name);
    for (const PageNumber page : table.pages)
        add(page);
    const TableContents contents = TableContents::read(m_source, table, name);
    for (const auto* maps : {&contents.rowMaps, &contents.indexMaps, &contents.longValueMaps})
        for (const UsageMap& map : *maps)
            addMap(map);
}

void PageUse::addMap(const UsageMap& map) {
    add(map.where().page);
    for (const PageNumber page : map.bitmapPages())
        add(page);
    for (const PageNumber page : map.pages())
        add(page);
}

} // namespace jet
