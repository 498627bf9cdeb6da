// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One stored usage map for changing: a row that holds its bits itself, from a start page on, or that refers
// to bitmap pages. Answers where a page's bit lies; what a missing bit means and how a map grows is settled
// by UsageMapWriter for a table's maps and by PageAllocator for the map of free pages. A row that is no map
// is RuntimeError kProviderFailure. Layout: docs/jet4-format.md, "Usage maps".

#include "platform/jet/BitSpan.h"
#include "platform/jet/RowPointer.h"
#include "platform/jet/WriteCache.h"

namespace jet {

class UsageMapRow {
public:
    UsageMapRow(WriteCache& cache, RowPointer where, WriteStage stage);

    bool isInline() const;
    PageNumber inlineStart() const;
    // The pages an inline map reaches, from inlineStart() on.
    std::uint32_t inlineSize() const;
    ConstBitSpan inlineBits() const;
    BitSpan editInlineBits();
    // Lets an empty inline map begin at another page, a multiple of 8.
    void moveInlineStart(PageNumber start);

    // Of a map of references: how many bitmap pages it has room for, and the page of each, 0 where none is.
    std::uint32_t bitmapCount() const;
    PageNumber bitmapPage(std::uint32_t index) const;
    void setBitmapPage(std::uint32_t index, PageNumber page);
    ConstBitSpan bitmap(std::uint32_t index) const;
    BitSpan editBitmap(std::uint32_t index);

    // Turns an inline map into one of references without any bitmap page.
    void becomeReferences();
    // Makes a page of zeros an empty bitmap page; answers its bits.
    static BitSpan initialiseBitmap(MutablePage page);

private:
    std::span<const std::byte> read() const;
    std::span<std::byte> edit();
    PageBytes bitmapBytes(std::uint32_t index) const;

    WriteCache& m_cache;
    RowPointer m_where;
    WriteStage m_stage;
    std::size_t m_start = 0; // map rows keep their place in the page
    std::size_t m_size = 0;
};

} // namespace jet
