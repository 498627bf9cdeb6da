// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How much room a data page has: what lies between its slots and its lowest row. The places of deleted rows
// are not used again. Slots that make no sense are RuntimeError kProviderFailure. Refers to the page's bytes.
// Layout: docs/jet4-format.md, "Rows".

#include "platform/jet/PageSource.h"

namespace jet {

class DataPageSpace {
public:
    DataPageSpace(PageBytes page, const Place& place);

    std::size_t slotCount() const noexcept { return m_slotCount; }
    std::size_t lowestStart() const noexcept { return m_lowestStart; }
    std::size_t freeBytes() const noexcept;
    bool fits(std::size_t rowSize) const noexcept;

private:
    std::size_t m_slotCount;
    std::size_t m_lowestStart;
};

} // namespace jet
