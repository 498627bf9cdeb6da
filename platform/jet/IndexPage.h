// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The entries of one index page, in order: where each ends is told by a bitmask, and all but the first leave
// out the bytes that they share with it. Ends are held against the page's space. The page's bytes must stay
// until the last entry was taken. Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/ByteView.h"
#include "platform/jet/PageSource.h"
#include "platform/jet/RowPointer.h"

#include <vector>

namespace jet {

class IndexPage {
public:
    // Throws unless it is an index page.
    IndexPage(PageBytes bytes, const Place& place);

    bool isLeaf() const noexcept { return m_isLeaf; }
    // The root of an index without entries; to be asked before nextEntry().
    bool isEmptyLeaf() const { return m_isLeaf && findEnd() == 0; }
    PageNumber owner() const { return m_view.u32(format::page::kOwner); }
    PageNumber previous() const { return m_view.u32(format::indexPage::kPrevious); }
    PageNumber next() const { return m_view.u32(format::indexPage::kNext); }
    // A node's last child that has no entry; 0 for none and on leaves.
    PageNumber tail() const { return m_isLeaf ? 0 : m_view.u32(format::indexPage::kTail); }
    std::size_t freeBytes() const { return m_view.u16(format::page::kFreeBytes); }
    const Place& place() const noexcept { return m_view.place(); }

    // Goes to the next entry; false after the last. What follows is about the entry reached.
    bool nextEntry();
    std::span<const std::byte> key() const noexcept { return std::span(m_entry).first(m_keySize); }
    RowPointer row() const noexcept { return m_row; }
    PageNumber child() const noexcept { return m_child; } // nodes only
    // Bytes taken by the entries up to this one.
    std::size_t usedBytes() const noexcept { return m_end; }

private:
    std::size_t findEnd() const;
    void parseEntry();

    ByteView m_view;
    bool m_isLeaf = true;
    std::size_t m_prefix = 0;
    std::size_t m_end = 0; // of the entry reached, from the start of the entries
    std::vector<std::byte> m_entry;
    std::size_t m_keySize = 0;
    RowPointer m_row;
    PageNumber m_child = 0;
};

} // namespace jet
