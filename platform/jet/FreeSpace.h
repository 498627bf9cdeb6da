// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Finds room for rows of one kind: the data pages of a table or the long-value pages of a column, each listed
// in a map of owned pages and a map of those with free space. Takes the page used last, then a few pages of
// the free map, then a new page. A page that turns out full leaves the free map.

#include "platform/jet/UsageMapWriter.h"

namespace jet {

class FreeSpace {
public:
    struct Maps {
        RowPointer owned;
        RowPointer free;
    };
    // `owner` is what the pages carry in their header; `stage` is when existing pages are to be written.
    FreeSpace(WriteCache& cache, PageAllocator& allocator, Maps maps, std::uint32_t owner, WriteStage stage);

    // Where the row was put.
    RowPointer store(std::span<const std::byte> row);

private:
    PageNumber pageFor(std::size_t rowSize);
    bool fits(PageNumber page, std::size_t rowSize);
    PageNumber addPage();
    Place place(PageNumber page) const { return {m_cache.name(), {}, page, kNoRow}; }

    WriteCache& m_cache;
    PageAllocator& m_allocator;
    UsageMapWriter m_owned;
    UsageMapWriter m_free;
    std::uint32_t m_owner;
    WriteStage m_stage;
    PageNumber m_current = 0; // 0: none yet
};

} // namespace jet
