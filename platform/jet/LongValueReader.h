// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Fetches memos and OLE objects, which lie in the row itself, in one row of a long-value page or in a chain
// of such rows. What comes back is never longer than the length stored in the row, nor than what the pages
// hold, nor than the file; a chain that meets itself is an error. The source must outlive the reader, which
// keeps one page and the last value. Layout: docs/jet4-format.md, "Long values".

#include "platform/jet/ByteView.h"
#include "platform/jet/PageSource.h"
#include "platform/jet/RowPointer.h"

#include <optional>
#include <vector>

namespace jet {

class LongValueReader {
public:
    explicit LongValueReader(PageSource& source) : m_source(source) {}

    // `field` is the column's bytes in the row. The answer is valid until the next call and as long as
    // the row is.
    std::span<const std::byte> read(std::span<const std::byte> field, const Place& place);

    // Follows a value as read() does and keeps nothing of it: throws what reading it would throw.
    void check(std::span<const std::byte> field, const Place& place);

    // Of all values so far, as they are stored.
    std::uint64_t bytesRead() const noexcept { return m_bytesRead; }

private:
    template <typename Chain>
    std::span<const std::byte> find(std::span<const std::byte> field, const Place& place, Chain chain);
    ByteView row(RowPointer where, const Place& place);
    template <typename Take>
    void followChain(RowPointer first, std::size_t length, const Place& place, Take take);

    PageSource& m_source;
    PageBuffer m_buffer;
    std::optional<PageNumber> m_bufferedPage;
    std::optional<PageBytes> m_page;
    std::vector<std::byte> m_value;
    std::uint64_t m_bytesRead = 0;
};

} // namespace jet
