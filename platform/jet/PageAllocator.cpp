// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageAllocator.h"

#include <algorithm>

namespace jet {

using namespace format;

namespace {

// Bits of pages behind the end of the file are set: it may be extended into them.
void markFreeFrom(BitSpan bits, PageNumber base, PageNumber firstFree) {
    for (std::size_t bit = firstFree > base ? firstFree - base : 0; bit < bits.size(); ++bit)
        bits.set(bit, true);
}

} // namespace

PageAllocator::PageAllocator(WriteCache& cache)
    : m_cache(cache), m_map(cache, {usageMap::kGlobalPage, usageMap::kGlobalRow}, WriteStage::GlobalMap) {
    if (!cache.hasPartialPage())
        return;
    // A page that was about to be added when its writer died is in the way of nobody.
    const Region region = regionOf(cache.pageCount());
    if (region.bits.size() != 0 && !region.bits.test(cache.pageCount() - region.base))
        Place{cache.name(), {}, cache.pageCount(), kNoRow}.fail("the file ends within this page");
}

PageNumber PageAllocator::allocate() {
    const std::optional<PageNumber> free = firstFree();
    if (!free)
        return append();
    m_cache.create(*free);
    mark(*free, false);
    return *free;
}

PageAllocator::Region PageAllocator::regionOf(PageNumber page) const {
    if (m_map.isInline()) {
        const PageNumber start = m_map.inlineStart();
        if (page < start)
            return {0, start, ConstBitSpan({})};
        if (page - start < m_map.inlineSize())
            return {start, start + m_map.inlineSize(), m_map.inlineBits()};
        return {start + m_map.inlineSize(), page::kMaxCount, ConstBitSpan({})};
    }
    const std::uint32_t index = page / usageMap::kPagesPerBitmap;
    const PageNumber base = index * usageMap::kPagesPerBitmap;
    const bool present = index < m_map.bitmapCount() && m_map.bitmapPage(index) != 0;
    return {base, base + usageMap::kPagesPerBitmap, present ? m_map.bitmap(index) : ConstBitSpan({})};
}

std::optional<PageNumber> PageAllocator::firstFree() {
    while (m_searchFrom < m_cache.pageCount()) {
        const Region region = regionOf(m_searchFrom);
        const auto found = region.bits.firstSet(m_searchFrom - region.base);
        m_searchFrom = found ? region.base + static_cast<PageNumber>(*found) : region.end;
        if (found && m_searchFrom < m_cache.pageCount())
            return m_searchFrom;
    }
    return std::nullopt;
}

PageNumber PageAllocator::append() {
    const PageNumber page = m_cache.pageCount();
    m_cache.create(page);
    if (regionOf(page).bits.size() == 0)
        m_map.isInline() ? outgrowInline() : addRegion(page);
    mark(page, false);
    return page;
}

void PageAllocator::release(PageNumber page) {
    if (regionOf(page).bits.size() == 0)
        return;
    mark(page, true);
    m_searchFrom = std::min(m_searchFrom, page);
}

void PageAllocator::mark(PageNumber page, bool isFree) {
    if (m_map.isInline()) {
        m_map.editInlineBits().set(page - m_map.inlineStart(), isFree);
        return;
    }
    const std::uint32_t index = page / usageMap::kPagesPerBitmap;
    m_map.editBitmap(index).set(page % usageMap::kPagesPerBitmap, isFree);
}

// The region's bitmap takes the page after the one just appended.
void PageAllocator::addRegion(PageNumber page) {
    const std::uint32_t index = page / usageMap::kPagesPerBitmap;
    if (index >= m_map.bitmapCount())
        Place{m_cache.name(), {}, page, kNoRow}.fail("the map of free pages cannot take any more");
    const PageNumber bitmapPage = m_cache.pageCount();
    const BitSpan bits = UsageMapRow::initialiseBitmap(m_cache.create(bitmapPage));
    markFreeFrom(bits, index * usageMap::kPagesPerBitmap, m_cache.pageCount());
    m_map.setBitmapPage(index, bitmapPage);
}

void PageAllocator::outgrowInline() {
    std::vector<PageNumber> free;
    const ConstBitSpan old = m_map.inlineBits();
    for (auto bit = old.firstSet(); bit; bit = old.firstSet(*bit + 1))
        if (m_map.inlineStart() + *bit < m_cache.pageCount())
            free.push_back(m_map.inlineStart() + static_cast<PageNumber>(*bit));
    const PageNumber end = m_cache.pageCount() - 1;
    m_map.becomeReferences();
    addRegion(end);
    for (const PageNumber page : free) {
        if (page / usageMap::kPagesPerBitmap != end / usageMap::kPagesPerBitmap)
            continue; // too far below the end to be in the one bitmap: lost until the file is compacted
        m_map.editBitmap(page / usageMap::kPagesPerBitmap).set(page % usageMap::kPagesPerBitmap, true);
    }
}

} // namespace jet
