// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/FreeSpace.h"

#include "platform/jet/DataPage.h"
#include "platform/jet/DataPageAppend.h"
#include "platform/jet/DataPageSpace.h"

namespace jet {
namespace {

// Looking at more pages costs more reads than the space they might still have is worth.
constexpr std::size_t kPagesToTry = 4;
// A page with less room than this is not worth another look.
constexpr std::size_t kFullBelow = 256;

} // namespace

FreeSpace::FreeSpace(WriteCache& cache, PageAllocator& allocator, Maps maps, std::uint32_t owner,
                     WriteStage stage)
    : m_cache(cache), m_allocator(allocator), m_owned(cache, allocator, maps.owned),
      m_free(cache, allocator, maps.free), m_owner(owner), m_stage(stage) {}

RowPointer FreeSpace::store(std::span<const std::byte> row) {
    const PageNumber page = pageFor(row.size());
    m_current = page;
    return {page, appendRow(m_cache.edit(page, m_stage), row, place(page))};
}

PageNumber FreeSpace::pageFor(std::size_t rowSize) {
    if (m_current != 0 && fits(m_current, rowSize))
        return m_current;
    for (const PageNumber page : m_free.highest(kPagesToTry))
        if (fits(page, rowSize))
            return page;
    return addPage();
}

bool FreeSpace::fits(PageNumber page, std::size_t rowSize) {
    PageBuffer buffer;
    const PageBytes bytes = m_cache.page(page, buffer);
    if (!DataPage::isOwnedBy(bytes, m_owner))
        place(page).fail("the page is listed as one with free space but belongs to something else");
    const DataPageSpace space(bytes, place(page));
    if (space.fits(rowSize))
        return true;
    if (space.freeBytes() < kFullBelow)
        m_free.remove(page);
    return false;
}

PageNumber FreeSpace::addPage() {
    const PageNumber page = m_allocator.allocate();
    initialiseDataPage(m_cache.edit(page, m_stage), m_owner);
    m_owned.add(page);
    m_free.add(page);
    return page;
}

} // namespace jet
