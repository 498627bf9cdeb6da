// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The slot table of one data page: where its rows lie and what each slot means. Slots are checked when they
// are asked for; a table that does not fit the page is refused at once. Refers to the page's bytes.
// Layout: docs/jet4-format.md, "Rows".

#include "platform/jet/ByteView.h"
#include "platform/jet/Format.h"
#include "platform/jet/PageSource.h"

namespace jet {

enum class SlotKind : std::uint16_t {
    Row = 0,
    Pointer = format::dataPage::kPointer,     // the row moved; where to is stored here
    Relocated = format::dataPage::kRelocated, // body of a row that moved here
    Deleted = format::dataPage::kDeleted,
};

class DataPage {
public:
    DataPage() = default;
    // `place` names the page. Throws unless it is a data page.
    DataPage(PageBytes bytes, const Place& place);
    // Whether the bytes are those of a data page of this owner.
    static bool isOwnedBy(PageBytes bytes, std::uint32_t owner) noexcept;

    std::uint32_t owner() const { return m_view.u32(format::page::kOwner); }
    std::size_t slotCount() const noexcept { return m_slotCount; }
    SlotKind kind(std::size_t slot) const {
        return static_cast<SlotKind>(stored(slot) & format::dataPage::kFlagMask);
    }
    // The slot's bytes whatever its kind, after a check of its bounds; the view's place names the row.
    ByteView row(std::size_t slot) const;
    // Slots that stand for a live row of the table: rows and pointers.
    std::size_t liveSlots() const;

private:
    std::uint16_t stored(std::size_t slot) const {
        return m_view.u16(format::dataPage::kSlots + slot * format::dataPage::kSlotSize);
    }

    ByteView m_view;
    std::size_t m_slotCount = 0;
};

} // namespace jet
