// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageLedger.h"

#include <utility>

namespace jet {
namespace {

constexpr std::uint32_t kNobody = 0;
constexpr std::uint32_t kMaps = 1;

} // namespace

PageLedger::PageLedger(const PageSource& source, UsageMap freePages)
    : m_file(source.name()), m_freePages(std::move(freePages)), m_names{"nobody", "usage maps"},
      m_users(source.pageCount(), kNobody) {}

void PageLedger::enter(PageNumber page, std::string_view use) {
    checkFree(page, use);
    if (m_users[page] != kNobody)
        Place{m_file, {}, page}.fail("the page is used twice: for " + m_names[m_users[page]] + " and for " +
                                     std::string(use));
    if (m_names.back() != use)
        m_names.emplace_back(use);
    m_users[page] = static_cast<std::uint32_t>(m_names.size() - 1);
    ++m_usedPages;
}

void PageLedger::enterShared(PageNumber page) {
    if (page < m_users.size() && m_users[page] == kMaps)
        return;
    enter(page, m_names[kMaps]);
    m_users[page] = kMaps;
}

void PageLedger::checkFree(PageNumber page, std::string_view use) const {
    const Place place{m_file, {}, page};
    if (page >= m_users.size())
        place.fail("the page lies beyond the end of the file, used for " + std::string(use));
    if (m_freePages.contains(page) || page >= m_freePages.coveredEnd())
        place.fail("the page is marked free, but used for " + std::string(use));
}

} // namespace jet
