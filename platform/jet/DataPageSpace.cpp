// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DataPageSpace.h"

#include "platform/jet/ByteView.h"

namespace jet {

using namespace format;

DataPageSpace::DataPageSpace(PageBytes bytes, const Place& place) {
    const ByteView view(bytes, place);
    m_slotCount = view.u16(dataPage::kSlotCount);
    const std::size_t slotsEnd = dataPage::kSlots + dataPage::kSlotSize * m_slotCount;
    if (view.u8(page::kType) != page::kData || slotsEnd > page::kSize)
        place.fail("this is no page of rows");
    m_lowestStart =
        m_slotCount == 0 ? page::kSize : view.u16(slotsEnd - dataPage::kSlotSize) & dataPage::kOffsetMask;
    if (m_lowestStart > page::kSize || m_lowestStart < slotsEnd)
        place.fail("the rows run into their slots");
}

std::size_t DataPageSpace::freeBytes() const noexcept {
    return m_lowestStart - dataPage::kSlots - dataPage::kSlotSize * m_slotCount;
}

bool DataPageSpace::fits(std::size_t rowSize) const noexcept {
    return m_slotCount < dataPage::kMaxSlots && freeBytes() >= rowSize + dataPage::kSlotSize;
}

} // namespace jet
