// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Stores memo and OLE values of one column: in the row itself when they are short and the row has room, as
// one row of a long-value page, or as a chain of such rows. Answers the field that goes into the row. Layout:
// docs/jet4-format.md, "Long values".

#include "platform/jet/ByteBuilder.h"
#include "platform/jet/FreeSpace.h"

namespace jet {

class LongValueWriter {
public:
    LongValueWriter(WriteCache& cache, PageAllocator& allocator, FreeSpace::Maps maps);

    static bool isShort(std::size_t size) noexcept;
    // What the field takes in the row.
    static std::size_t fieldSize(std::size_t size, bool inRow) noexcept;
    static Bytes inRow(std::span<const std::byte> value);

    Bytes store(std::span<const std::byte> value);

private:
    RowPointer storeChain(std::span<const std::byte> value);

    FreeSpace m_space;
};

} // namespace jet
