// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexNode.h"

#include "platform/jet/Format.h"

#include <algorithm>
#include <iterator>

namespace jet {

IndexEntry IndexEntry::make(const KeyBytes& key, RowPointer row) {
    IndexEntry entry{key, 0};
    for (const unsigned shift : {16U, 8U, 0U})
        entry.bytes.push_back(static_cast<char>(row.page >> shift & 0xFFU));
    entry.bytes.push_back(static_cast<char>(row.row));
    return entry;
}

RowPointer IndexEntry::row() const {
    PageNumber page = 0;
    for (std::size_t at = bytes.size() - kRowSize; at + 1 < bytes.size(); ++at)
        page = page << 8U | static_cast<std::uint8_t>(bytes[at]);
    return {page, static_cast<std::uint8_t>(bytes.back())};
}

std::size_t IndexNode::prefixLength() const {
    if (entries.size() < 2)
        return 0;
    const std::string_view first = entries.front().key();
    const std::string_view last = entries.back().key();
    const auto end = std::ranges::mismatch(first, last).in1;
    return static_cast<std::size_t>(end - first.begin());
}

std::size_t IndexNode::encodedSize() const {
    const std::size_t shared = entries.empty() ? 0 : prefixLength() * (entries.size() - 1);
    const std::size_t children = isLeaf ? 0 : format::indexPage::kChildPointerSize * entries.size();
    return m_bytes + children - shared;
}

std::size_t IndexNode::lowerBound(std::string_view bytes) const {
    const auto found = std::ranges::lower_bound(
        entries, bytes, {}, [](const IndexEntry& entry) { return std::string_view(entry.bytes); });
    return static_cast<std::size_t>(found - entries.begin());
}

void IndexNode::insert(std::size_t at, IndexEntry entry) {
    m_bytes += entry.bytes.size();
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(at), std::move(entry));
}

void IndexNode::replaceKey(std::size_t at, const KeyBytes& bytes) {
    m_bytes += bytes.size();
    m_bytes -= entries[at].bytes.size();
    entries[at].bytes = bytes;
}

void IndexNode::moveTail(std::size_t at, IndexNode& to) {
    const auto from = entries.begin() + static_cast<std::ptrdiff_t>(at);
    to.entries.assign(std::make_move_iterator(from), std::make_move_iterator(entries.end()));
    entries.erase(from, entries.end());
    recount();
    to.recount();
}

void IndexNode::recount() {
    m_bytes = 0;
    for (const IndexEntry& entry : entries)
        m_bytes += entry.bytes.size();
}

} // namespace jet
