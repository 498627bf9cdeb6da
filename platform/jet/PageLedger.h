// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Who uses which page of a database. Entering a page that lies beyond the end, that somebody else uses or
// that is marked free throws RuntimeError kProviderFailure with both names. For checking whole files.

#include "platform/jet/PageSource.h"
#include "platform/jet/UsageMap.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

class PageLedger {
public:
    PageLedger(const PageSource& source, UsageMap freePages);

    // `use` says what for and tells users apart.
    void enter(PageNumber page, std::string_view use);
    // Pages with usage maps serve several tables.
    void enterShared(PageNumber page);
    std::size_t usedPages() const noexcept { return m_usedPages; }

private:
    void checkFree(PageNumber page, std::string_view use) const;

    std::string m_file;
    UsageMap m_freePages;
    std::vector<std::string> m_names;
    std::vector<std::uint32_t> m_users; // by page: place in m_names, 0 = nobody
    std::size_t m_usedPages = 0;
};

} // namespace jet
