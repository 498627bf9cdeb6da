// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TablePages.h"

#include "platform/jet/UsageMap.h"

#include <algorithm>
#include <numeric>

namespace jet {
namespace {

const LongValueMaps* mapsOf(const TableDefinition& table, const Column& column) {
    const auto found = std::ranges::find(table.longValueMaps, column.number, &LongValueMaps::column);
    return found == table.longValueMaps.end() || found->isBroken() ? nullptr : &*found;
}

std::vector<PageNumber> allPages(const PageSource& source) {
    std::vector<PageNumber> pages(source.pageCount());
    std::iota(pages.begin(), pages.end(), PageNumber{0});
    return pages;
}

void addMap(std::vector<PageNumber>& pages, const UsageMap& map) {
    const std::vector<PageNumber>& members = map.pagesWithinFile();
    pages.insert(pages.end(), members.begin(), members.end());
}

} // namespace

std::vector<PageNumber> tablePages(PageSource& source, const TableDefinition& table,
                                   std::string_view tableName) {
    const UsageMap owned = UsageMap::read(source, table.ownedMap, tableName);
    std::vector<PageNumber> pages{owned.where().page};
    pages.insert(pages.end(), owned.bitmapPages().begin(), owned.bitmapPages().end());
    addMap(pages, owned);
    for (const Column& column : table.columns) {
        if (!column.isLongValue())
            continue;
        const LongValueMaps* maps = mapsOf(table, column);
        if (maps == nullptr)
            return allPages(source);
        addMap(pages, UsageMap::read(source, maps->owned, tableName));
    }
    return pages;
}

} // namespace jet
