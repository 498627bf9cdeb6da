// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Gives a new table its pages: rows for its usage maps, a root for each index, and the pointers to them in
// the definition. Everything lies in the WriteCache until its flush.

#include "platform/jet/PageAllocator.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

// Hands out empty usage maps, as many to a page as there is room for.
class NewUsageMaps {
public:
    NewUsageMaps(WriteCache& cache, PageAllocator& allocator) : m_cache(cache), m_allocator(allocator) {}

    RowPointer add();
    RowPointer addWith(PageNumber member);

private:
    WriteCache& m_cache;
    PageAllocator& m_allocator;
    PageNumber m_page = 0;
};

// Maps of the table's rows and long values. The definition's own pages must be known by then.
void placeMaps(TableDefinition& table, NewUsageMaps& maps);
// An empty page as the root of each index, and the indexes' maps.
void placeIndexes(TableDefinition& table, NewUsageMaps& maps, WriteCache& cache, PageAllocator& allocator);

} // namespace jet
