// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableScan.h"

#include "platform/jet/UsageMap.h"

#include <algorithm>
#include <string>

namespace jet {

TableScan::TableScan(PageSource& source, const TableDefinition& table, std::string_view tableName)
    : m_source(source), m_tableName(tableName), m_owner(table.page()),
      m_pages(UsageMap::read(source, table.ownedMap, tableName).pagesWithinFile()) {}

bool TableScan::next() {
    for (;;) {
        while (m_nextSlot < m_page.slotCount()) {
            if (take(m_nextSlot++))
                return true;
        }
        if (!nextPage())
            return false;
    }
}

RowPointer TableScan::position() const noexcept {
    return {m_pages[m_nextPage - 1], static_cast<std::uint8_t>(m_nextSlot - 1)};
}

bool TableScan::moveTo(RowPointer where) {
    if (m_openPage != where.page) { // whoever goes from row to row mostly stays on the page
        const auto page = std::ranges::lower_bound(m_pages, where.page);
        if (page == m_pages.end() || *page != where.page)
            return false;
        m_nextPage = static_cast<std::size_t>(page - m_pages.begin()) + 1;
        openPage(where.page);
    }
    m_nextSlot = std::size_t{where.row} + 1;
    return where.row < m_page.slotCount() && take(where.row);
}

bool TableScan::nextPage() {
    if (m_nextPage == m_pages.size())
        return false;
    openPage(m_pages[m_nextPage++]);
    m_nextSlot = 0;
    return true;
}

void TableScan::openPage(PageNumber page) {
    m_openPage.reset();
    m_page = DataPage(m_source.page(page, m_pageBuffer), placeOf(page));
    if (m_page.owner() != m_owner)
        placeOf(page).fail("the page belongs to " + std::to_string(m_page.owner()) +
                           " instead of the table at " + std::to_string(m_owner));
    m_openPage = page;
}

bool TableScan::take(std::size_t slot) {
    switch (m_page.kind(slot)) {
    case SlotKind::Row:
        m_row = RowView(m_page.row(slot));
        return true;
    case SlotKind::Pointer:
        m_row = RowView(follow(m_page.row(slot)));
        return true;
    default:
        return false;
    }
}

// One step only: whoever moves a row again sets its first pointer.
ByteView TableScan::follow(const ByteView& pointer) {
    const RowPointer target = RowPointer::fromStored(pointer.u32(0));
    const DataPage page(m_source.page(target.page, m_movedBuffer), placeOf(target.page));
    const ByteView body = page.row(target.row);
    if (page.owner() != m_owner)
        pointer.fail("the row was moved to page " + std::to_string(target.page) +
                     ", which is not the table's");
    if (page.kind(target.row) != SlotKind::Relocated)
        body.fail("a moved row is expected here");
    return body;
}

} // namespace jet
