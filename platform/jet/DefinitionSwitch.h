// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The new state of a table's definition whose pointers and row count have changed, ready so that one write of
// its first page brings it into force: continuation pages that change are new pages, which the first page
// then points to. Built in the WriteCache, as new pages; the first page itself is handed out. Layout:
// docs/jet4-format.md, "Emptying a table".

#include "platform/jet/PageAllocator.h"
#include "platform/jet/TableDefinition.h"

#include <vector>

namespace jet {

class DefinitionSwitch {
public:
    // `from` as it is in the file, `to` the same with other maps, roots and row count.
    DefinitionSwitch(WriteCache& cache, PageAllocator& allocator, const TableDefinition& from,
                     const TableDefinition& to);

    const PageBuffer& firstPage() const noexcept { return m_firstPage; }
    // Continuation pages that nothing refers to once the first page is written.
    const std::vector<PageNumber>& replacedPages() const noexcept { return m_replaced; }

private:
    void replaceContinuations(WriteCache& cache, PageAllocator& allocator, const TableDefinition& from,
                              std::span<const std::byte> changed);

    PageBuffer m_firstPage{};
    std::vector<PageNumber> m_replaced;
};

} // namespace jet
