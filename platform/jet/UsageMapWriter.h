// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Keeps one usage map of a table: adds and removes pages, and turns an inline map into one of bitmap pages
// when it does not reach. Changes lie in the WriteCache until its flush. Cache and allocator must outlive it.

#include "platform/jet/PageAllocator.h"

namespace jet {

class UsageMapWriter {
public:
    UsageMapWriter(WriteCache& cache, PageAllocator& allocator, RowPointer where);

    void add(PageNumber page);
    void remove(PageNumber page);
    bool contains(PageNumber page) const;
    // Up to `limit` pages with the highest numbers, highest first.
    std::vector<PageNumber> highest(std::size_t limit) const;

private:
    bool inlineReaches(PageNumber page) const;
    void becomeReferences();
    BitSpan bitmapFor(PageNumber page);

    WriteCache& m_cache;
    PageAllocator& m_allocator;
    UsageMapRow m_map;
};

} // namespace jet
