// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a caller may keep between two openings of the same database to find a table again with one page read.
// Never believed as it is: the creation date shows a compacted file, the catalog's row is read again and must
// still name the table. A plain value, cheap to copy. See docs/jet4-format.md, "Counting while the server
// writes".

#include "platform/jet/CatalogEntry.h"
#include "platform/jet/DatabaseHeader.h"
#include "platform/jet/PageSource.h"

#include <optional>
#include <string_view>

namespace jet {

struct CatalogHint {
    std::uint64_t creationStamp = 0;
    CatalogColumns columns;
    CatalogEntry entry;

    // The entry as the catalog has it now, nothing when the hint no longer holds for this table.
    std::optional<CatalogEntry> check(PageSource& source, const DatabaseHeader& header,
                                      std::string_view table) const;
};

} // namespace jet
