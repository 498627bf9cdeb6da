// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DataPageAppend.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"
#include "platform/jet/DataPageSpace.h"

namespace jet {

using namespace format;

void initialiseDataPage(MutablePage page, std::uint32_t owner) {
    ByteEditor bytes(page);
    bytes.put8(page::kType, page::kData);
    bytes.put8(page::kMark, page::kMarkValue);
    bytes.put16(page::kFreeBytes, static_cast<std::uint16_t>(page::kSize - dataPage::kSlots));
    bytes.put32(page::kOwner, owner);
}

std::uint8_t appendRow(MutablePage page, std::span<const std::byte> row, const Place& place) {
    const DataPageSpace space(page, place);
    if (!space.fits(row.size()))
        throw basic::RuntimeError(basic::kInternalError, "A row that does not fit its page");
    const std::size_t slot = space.slotCount();
    const std::size_t start = space.lowestStart() - row.size();
    ByteEditor bytes(page);
    bytes.copy(start, row);
    bytes.put16(dataPage::kSlots + dataPage::kSlotSize * slot, static_cast<std::uint16_t>(start));
    bytes.put16(dataPage::kSlotCount, static_cast<std::uint16_t>(slot + 1));
    bytes.put16(page::kFreeBytes, static_cast<std::uint16_t>(DataPageSpace(page, place).freeBytes()));
    return static_cast<std::uint8_t>(slot);
}

} // namespace jet
