// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/UsageMapRow.h"

#include "platform/jet/ByteEditor.h"
#include "platform/jet/ByteView.h"

namespace jet {

using namespace format;

namespace {

Place placeOf(const WriteCache& cache, RowPointer where) {
    return {cache.name(), {}, where.page, where.row};
}

ByteView view(const WriteCache& cache, RowPointer where, std::span<const std::byte> bytes) {
    return {bytes, placeOf(cache, where)};
}

std::span<const std::byte> bitmapOf(PageBytes page) {
    return page.subspan(usageMap::kPageBitmap);
}

} // namespace

UsageMapRow::UsageMapRow(WriteCache& cache, RowPointer where, WriteStage stage)
    : m_cache(cache), m_where(where), m_stage(stage) {
    PageBuffer buffer;
    const ByteView page = view(cache, where, cache.page(where.page, buffer));
    const std::size_t slot = dataPage::kSlots + dataPage::kSlotSize * where.row;
    if (page.u8(page::kType) != page::kData || where.row >= page.u16(dataPage::kSlotCount))
        page.fail("there is no usage map");
    m_start = page.u16(slot) & dataPage::kOffsetMask;
    const std::size_t end =
        where.row == 0 ? page::kSize : page.u16(slot - dataPage::kSlotSize) & dataPage::kOffsetMask;
    if (m_start > end || end > page::kSize || end - m_start < usageMap::kBitmap)
        page.fail("the usage map lies outside the page");
    m_size = end - m_start;
    if (read()[usageMap::kType] > std::byte{usageMap::kReference})
        page.fail("the usage map is of an unknown kind");
}

std::span<const std::byte> UsageMapRow::read() const {
    PageBuffer buffer;
    return m_cache.page(m_where.page, buffer).subspan(m_start, m_size);
}

std::span<std::byte> UsageMapRow::edit() {
    return m_cache.edit(m_where.page, m_stage).subspan(m_start, m_size);
}

bool UsageMapRow::isInline() const {
    return read()[usageMap::kType] == std::byte{usageMap::kInline};
}

PageNumber UsageMapRow::inlineStart() const {
    return view(m_cache, m_where, read()).u32(usageMap::kStartPage);
}

std::uint32_t UsageMapRow::inlineSize() const {
    return static_cast<std::uint32_t>(inlineBits().size());
}

ConstBitSpan UsageMapRow::inlineBits() const {
    return ConstBitSpan(read().subspan(usageMap::kBitmap));
}

BitSpan UsageMapRow::editInlineBits() {
    return BitSpan(edit().subspan(usageMap::kBitmap));
}

void UsageMapRow::moveInlineStart(PageNumber start) {
    ByteEditor(edit()).put32(usageMap::kStartPage, start);
}

std::uint32_t UsageMapRow::bitmapCount() const {
    return static_cast<std::uint32_t>((m_size - usageMap::kPointers) / usageMap::kPointerSize);
}

PageNumber UsageMapRow::bitmapPage(std::uint32_t index) const {
    return view(m_cache, m_where, read()).u32(usageMap::kPointers + usageMap::kPointerSize * index);
}

void UsageMapRow::setBitmapPage(std::uint32_t index, PageNumber page) {
    ByteEditor(edit()).put32(usageMap::kPointers + usageMap::kPointerSize * index, page);
}

PageBytes UsageMapRow::bitmapBytes(std::uint32_t index) const {
    PageBuffer buffer;
    const PageNumber number = bitmapPage(index);
    const PageBytes bytes = m_cache.page(number, buffer);
    if (bytes[page::kType] != std::byte{page::kUsageBitmap})
        placeOf(m_cache, m_where).fail("page " + std::to_string(number) + " is no page of a usage map");
    return bytes;
}

ConstBitSpan UsageMapRow::bitmap(std::uint32_t index) const {
    return ConstBitSpan(bitmapOf(bitmapBytes(index)));
}

BitSpan UsageMapRow::editBitmap(std::uint32_t index) {
    bitmapBytes(index);
    return BitSpan(m_cache.edit(bitmapPage(index), m_stage).subspan(usageMap::kPageBitmap));
}

void UsageMapRow::becomeReferences() {
    ByteEditor bytes(edit());
    bytes.fill(0, m_size, 0);
    bytes.put8(usageMap::kType, usageMap::kReference);
}

BitSpan UsageMapRow::initialiseBitmap(MutablePage page) {
    ByteEditor bytes(page);
    bytes.put8(page::kType, page::kUsageBitmap);
    bytes.put8(page::kMark, page::kMarkValue);
    return BitSpan(page.subspan(usageMap::kPageBitmap));
}

} // namespace jet
