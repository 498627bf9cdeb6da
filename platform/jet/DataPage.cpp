// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DataPage.h"

#include <string>

namespace jet {

namespace layout = format::dataPage;

DataPage::DataPage(PageBytes bytes, const Place& place) : m_view(bytes, place) {
    if (m_view.u8(format::page::kType) != format::page::kData)
        m_view.fail("a data page is expected, the type is " + std::to_string(m_view.u8(format::page::kType)));
    m_slotCount = m_view.u16(layout::kSlotCount);
    if (m_slotCount > layout::kMaxSlots)
        m_view.fail(std::to_string(m_slotCount) + " rows do not fit a page");
}

bool DataPage::isOwnedBy(PageBytes bytes, std::uint32_t owner) noexcept {
    const ByteView view(bytes, {});
    return view.u8(format::page::kType) == format::page::kData && view.u32(format::page::kOwner) == owner;
}

ByteView DataPage::row(std::size_t slot) const {
    Place place = m_view.place();
    place.row = static_cast<std::int32_t>(slot);
    if (slot >= m_slotCount)
        place.fail("the page has only " + std::to_string(m_slotCount) + " rows");
    const std::size_t offset = stored(slot) & layout::kOffsetMask;
    const std::size_t end = slot == 0 ? format::page::kSize : stored(slot - 1) & layout::kOffsetMask;
    const std::size_t lowest = layout::kSlots + m_slotCount * layout::kSlotSize;
    if (offset < lowest || end < offset || end > format::page::kSize)
        place.fail("the row's bounds " + std::to_string(offset) + " to " + std::to_string(end) +
                   " lie outside the page's row area from " + std::to_string(lowest));
    return {m_view.slice(offset, end - offset), place};
}

std::size_t DataPage::liveSlots() const {
    std::size_t live = 0;
    for (std::size_t slot = 0; slot < m_slotCount; ++slot)
        live += (stored(slot) & layout::kRelocated) == 0 ? 1U : 0U;
    return live;
}

} // namespace jet
