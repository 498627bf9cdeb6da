// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LongValueReader.h"

#include "platform/jet/DataPage.h"

#include <algorithm>
#include <bit>

namespace jet {

namespace layout = format::longValue;

std::span<const std::byte> LongValueReader::read(std::span<const std::byte> field, const Place& place) {
    const auto joined = [&](RowPointer first, std::size_t length) {
        m_value.clear();
        followChain(first, length, place, [this](std::span<const std::byte> part) {
            m_value.insert(m_value.end(), part.begin(), part.end());
        });
        return std::span<const std::byte>(m_value);
    };
    const std::span<const std::byte> value = find(field, place, joined);
    m_bytesRead += value.size();
    return value;
}

void LongValueReader::check(std::span<const std::byte> field, const Place& place) {
    const auto counted = [&](RowPointer first, std::size_t length) {
        followChain(first, length, place,
                    [this](std::span<const std::byte> part) { m_bytesRead += part.size(); });
        return std::span<const std::byte>();
    };
    m_bytesRead += find(field, place, counted).size();
}

// `chain` answers for a value of several parts, by its first one and its length.
template <typename Chain>
std::span<const std::byte> LongValueReader::find(std::span<const std::byte> field, const Place& place,
                                                 Chain chain) {
    // Fields shorter than the header occur in sound databases and stand for no text.
    if (field.size() < layout::kHeaderSize)
        return {};
    const ByteView view(field, place);
    const std::uint32_t stored = view.u32(layout::kLength);
    const std::size_t length =
        std::min<std::size_t>(stored & layout::kLengthMask, m_source.pageCount() * format::page::kSize);
    const RowPointer where = RowPointer::fromStored(view.u32(layout::kRow));
    switch (stored & layout::kKindMask) {
    case layout::kInline:
        return field.subspan(layout::kHeaderSize, std::min(length, field.size() - layout::kHeaderSize));
    case layout::kSingleRow: {
        const std::span<const std::byte> bytes = row(where, place).bytes();
        return bytes.first(std::min(length, bytes.size()));
    }
    case layout::kChain:
        return chain(where, length);
    default:
        view.fail("the long value is of an unknown kind");
    }
}

ByteView LongValueReader::row(RowPointer where, const Place& place) {
    if (m_bufferedPage != where.page) {
        m_bufferedPage.reset();
        m_page.emplace(m_source.page(where.page, m_buffer));
        m_bufferedPage = where.page;
    }
    const DataPage page(*m_page, {place.file, place.table, where.page});
    if (page.owner() != format::dataPage::kLongValueOwner)
        place.fail("the long value refers to page " + std::to_string(where.page) +
                   ", which holds no long values");
    const ByteView bytes = page.row(where.row);
    if (page.kind(where.row) == SlotKind::Deleted)
        bytes.fail("the part of a long value was deleted");
    return bytes;
}

// A second pointer stays behind at each power of two; a chain that meets itself comes back to it.
template <typename Take>
void LongValueReader::followChain(RowPointer first, std::size_t length, const Place& place, Take take) {
    RowPointer waiting = first;
    std::size_t steps = 0;
    std::size_t left = length;
    for (RowPointer next = first; next.page != 0 && left > 0;) {
        const ByteView part = row(next, place);
        const RowPointer after = RowPointer::fromStored(part.u32(0));
        const std::span<const std::byte> data = part.bytes().subspan(format::dataPage::kRowPointerSize);
        const std::span<const std::byte> wanted = data.first(std::min(left, data.size()));
        take(wanted);
        left -= wanted.size();
        if (after == waiting && after.page != 0)
            place.fail("the parts of a long value form a loop");
        if (std::has_single_bit(++steps))
            waiting = next;
        next = after;
    }
}

} // namespace jet
