// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowCount.h"

#include "platform/jet/DataPage.h"
#include "platform/jet/UsageMap.h"

namespace jet {

std::uint32_t countRows(PageSource& source, const TableHead& table, std::string_view tableName) {
    return table.rowCount != 0 ? table.rowCount : countLiveRows(source, table, tableName);
}

std::uint32_t countLiveRows(PageSource& source, const TableHead& table, std::string_view tableName) {
    const UsageMap owned = UsageMap::read(source, table.ownedMap, tableName);
    PageBuffer buffer;
    std::size_t live = 0;
    for (const PageNumber number : owned.pagesWithinFile()) {
        const Place place{source.name(), tableName, number};
        const DataPage page(source.page(number, buffer), place);
        if (page.owner() != table.page)
            place.fail("the page belongs to another table");
        live += page.liveSlots();
    }
    return static_cast<std::uint32_t>(live);
}

} // namespace jet
