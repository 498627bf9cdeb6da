// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/UsageMapWriter.h"

namespace jet {

using format::usageMap::kPagesPerBitmap;

namespace {

constexpr PageNumber kInlineAlignment = 8;

void collectHighest(const ConstBitSpan& bits, PageNumber base, std::size_t limit,
                    std::vector<PageNumber>& into) {
    for (auto bit = bits.lastSet(bits.size()); bit && into.size() < limit; bit = bits.lastSet(*bit))
        into.push_back(base + static_cast<PageNumber>(*bit));
}

} // namespace

UsageMapWriter::UsageMapWriter(WriteCache& cache, PageAllocator& allocator, RowPointer where)
    : m_cache(cache), m_allocator(allocator), m_map(cache, where, WriteStage::UsageMaps) {}

bool UsageMapWriter::inlineReaches(PageNumber page) const {
    return page >= m_map.inlineStart() && page - m_map.inlineStart() < m_map.inlineSize();
}

void UsageMapWriter::add(PageNumber page) {
    if (m_map.isInline() && !inlineReaches(page)) {
        if (m_map.inlineBits().firstSet())
            becomeReferences();
        else
            m_map.moveInlineStart(page / kInlineAlignment * kInlineAlignment);
    }
    if (m_map.isInline())
        m_map.editInlineBits().set(page - m_map.inlineStart(), true);
    else
        bitmapFor(page).set(page % kPagesPerBitmap, true);
}

void UsageMapWriter::remove(PageNumber page) {
    if (!contains(page))
        return;
    if (m_map.isInline())
        m_map.editInlineBits().set(page - m_map.inlineStart(), false);
    else
        bitmapFor(page).set(page % kPagesPerBitmap, false);
}

bool UsageMapWriter::contains(PageNumber page) const {
    if (m_map.isInline())
        return inlineReaches(page) && m_map.inlineBits().test(page - m_map.inlineStart());
    const std::uint32_t index = page / kPagesPerBitmap;
    return index < m_map.bitmapCount() && m_map.bitmapPage(index) != 0 &&
           m_map.bitmap(index).test(page % kPagesPerBitmap);
}

std::vector<PageNumber> UsageMapWriter::highest(std::size_t limit) const {
    std::vector<PageNumber> pages;
    if (m_map.isInline()) {
        collectHighest(m_map.inlineBits(), m_map.inlineStart(), limit, pages);
        return pages;
    }
    for (std::uint32_t index = m_map.bitmapCount(); index-- > 0 && pages.size() < limit;)
        if (m_map.bitmapPage(index) != 0)
            collectHighest(m_map.bitmap(index), index * kPagesPerBitmap, limit, pages);
    return pages;
}

void UsageMapWriter::becomeReferences() {
    std::vector<PageNumber> members;
    collectHighest(m_map.inlineBits(), m_map.inlineStart(), m_map.inlineSize(), members);
    m_map.becomeReferences();
    for (const PageNumber member : members)
        bitmapFor(member).set(member % kPagesPerBitmap, true);
}

BitSpan UsageMapWriter::bitmapFor(PageNumber page) {
    const std::uint32_t index = page / kPagesPerBitmap;
    if (index >= m_map.bitmapCount())
        Place{m_cache.name(), {}, page, kNoRow}.fail("the usage map cannot take this page");
    if (m_map.bitmapPage(index) == 0) {
        const PageNumber fresh = m_allocator.allocate();
        UsageMapRow::initialiseBitmap(m_cache.edit(fresh, WriteStage::NewPage));
        m_map.setBitmapPage(index, fresh);
    }
    return m_map.editBitmap(index);
}

} // namespace jet
