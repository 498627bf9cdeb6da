// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Hands out pages for a change: free ones of the database's own map first, lowest number first, then pages at
// the end of the file. The map is kept true as it goes, also when the file outgrows it: an inline map becomes
// one of bitmap pages. What the map does not reach inside the file counts as used, because writers that only
// ever append leave it behind. Changes lie in the WriteCache until its flush.

#include "platform/jet/UsageMapRow.h"

#include <optional>

namespace jet {

class PageAllocator {
public:
    // kProviderFailure when the file ends within a page that is in use: then it was cut short.
    explicit PageAllocator(WriteCache& cache);

    // A new page of zeros. RuntimeError kProviderFailure when the file has its largest size.
    PageNumber allocate();
    // Gives a page back. One that the map does not reach stays without a user.
    void release(PageNumber page);

private:
    // The pages one bitmap covers, and its bits; none where a map of references has no bitmap page.
    struct Region {
        PageNumber base = 0;
        PageNumber end = 0;
        ConstBitSpan bits{{}};
    };
    Region regionOf(PageNumber page) const;
    std::optional<PageNumber> firstFree();
    PageNumber append();
    void mark(PageNumber page, bool isFree);
    void addRegion(PageNumber page);
    void outgrowInline();

    WriteCache& m_cache;
    UsageMapRow m_map;
    PageNumber m_searchFrom = 0; // nothing below is free
};

} // namespace jet
