// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Which pages of a database are in use by the database itself and by all tables but one. Read from
// definitions and usage maps alone. Holds what a change of that one table is about to free, or to take as
// free, against what it must never touch. A table whose maps cannot be read is damage, kProviderFailure:
// then nobody knows.

#include "platform/jet/PageSource.h"
#include "platform/jet/UsageMap.h"

#include <vector>

namespace jet {

class PageUse {
public:
    // Of everybody but the table whose definition begins at `definitionPage`.
    PageUse(PageSource& source, PageNumber definitionPage);

    bool isUsed(PageNumber page) const { return page < m_isUsed.size() && m_isUsed[page]; }
    const UsageMap& freePages() const noexcept { return m_freePages; }

private:
    void addTable(PageNumber definitionPage, std::string_view name);
    void addMap(const UsageMap& map);
    void add(PageNumber page) { m_isUsed.at(page) = true; }

    PageSource& m_source;
    UsageMap m_freePages;
    std::vector<bool> m_isUsed;
};

} // namespace jet
