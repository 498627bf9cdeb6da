// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/IndexImages.h"

#include <algorithm>

namespace jet::test {
namespace {

Bytes bigEndian(std::uint32_t value) {
    Bytes bytes = u32(value);
    std::ranges::reverse(bytes);
    return bytes;
}

} // namespace

Bytes leafEntry(std::uint32_t key, RowPointer row) {
    return joined({fromHex("7F"), bigEndian(key ^ 0x80000000U), bigEndian(row.page << 8U | row.row)});
}

Bytes nodeEntry(std::uint32_t key, RowPointer row, PageNumber child) {
    return joined({leafEntry(key, row), bigEndian(child)});
}

void putIndexPage(Image& image, PageNumber page, const IndexImage& index) {
    namespace layout = format::indexPage;
    image.put(page, 0, Bytes(format::page::kSize));
    image.putU8(page, 0, index.isLeaf ? format::page::kIndexLeaf : format::page::kIndexNode);
    image.putU8(page, 1, 1);
    image.putU32(page, format::page::kOwner, index.owner);
    image.putU32(page, layout::kPrevious, index.previous);
    image.putU32(page, layout::kNext, index.next);
    image.putU32(page, layout::kTail, index.tail);
    image.putU16(page, layout::kPrefixLength, static_cast<unsigned>(index.prefix));
    std::size_t end = 0;
    for (const Bytes& entry : index.entries) {
        image.put(page, layout::kEntries + end, entry);
        end += entry.size();
        const std::size_t at = layout::kEntryEnds + end / 8;
        const auto now = std::to_integer<unsigned>(image.page(page)[at]);
        image.putU8(page, at, now | 1U << end % 8);
    }
    image.putU16(page, format::page::kFreeBytes, static_cast<unsigned>(layout::kEntrySpace - end));
}

} // namespace jet::test
