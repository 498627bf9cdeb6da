// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a table owns beside its definition: pages of rows, indexes and long values, and where its usage maps
// lie. Read from the maps alone, whatever the number of rows. An index whose root is not among its pages is
// passed over: that is what a switch of the definition leaves that was cut in two, and the pages then belong
// to nobody. Layout: docs/jet4-format.md, "Emptying a table".

#include "platform/jet/PageSource.h"
#include "platform/jet/TableDefinition.h"
#include "platform/jet/UsageMap.h"

#include <vector>

namespace jet {

struct TableContents {
    // Maps of rows and indexes, which a table that is emptied gets new.
    std::vector<UsageMap> rowMaps; // of all data pages, then of those with free space
    std::vector<UsageMap> indexMaps;
    // Maps of long values, which it keeps: owned pages and those with free space of each column.
    std::vector<UsageMap> longValueMaps;
    bool isSound = true; // no index was passed over

    static TableContents read(PageSource& source, const TableDefinition& table, std::string_view name);

    // Every page that goes when the table is emptied: data, index and long-value pages, and the bitmap pages
    // of the maps of rows and indexes. Ascending, a page named twice is twice in it.
    std::vector<PageNumber> emptiedPages() const;
    // Where the maps of rows and indexes lie.
    std::vector<RowPointer> emptiedMaps() const;
    // The bitmap pages of the maps of long values, which stay as well.
    std::vector<PageNumber> longValueBitmapPages() const;
    // The pages on which the maps lie, of rows, indexes and long values, and the bitmap pages that stay. A
    // page may be in it several times.
    std::vector<PageNumber> mapPages() const;
    bool hasLongValues() const;
};

} // namespace jet
