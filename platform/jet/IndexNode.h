// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One page of an index taken apart for changing: its entries in order, complete, and its neighbours. A node
// is read from and written to page bytes by IndexNodeCodec. Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/IndexKey.h"
#include "platform/jet/RowPointer.h"

#include <vector>

namespace jet {

struct IndexEntry {
    KeyBytes bytes;       // the key, then the row: page and slot, big-endian
    PageNumber child = 0; // nodes only: the page whose last entry this one repeats

    static IndexEntry make(const KeyBytes& key, RowPointer row);
    RowPointer row() const;
    std::string_view key() const { return std::string_view(bytes).substr(0, bytes.size() - kRowSize); }

    static constexpr std::size_t kRowSize = 4;
};

struct IndexNode {
    bool isLeaf = true;
    PageNumber previous = 0;
    PageNumber next = 0;
    PageNumber tail = 0; // nodes only: a last child that has no entry, or 0
    std::vector<IndexEntry> entries;

    // What the entries take on a page.
    std::size_t encodedSize() const;
    // How many leading bytes of their keys all entries share; they are stored once.
    std::size_t prefixLength() const;
    // The first entry that is not below `bytes`.
    std::size_t lowerBound(std::string_view bytes) const;

    void insert(std::size_t at, IndexEntry entry);
    void replaceKey(std::size_t at, const KeyBytes& bytes);
    // Moves the entries from `at` on into `to`, which is empty.
    void moveTail(std::size_t at, IndexNode& to);
    void recount();

private:
    std::size_t m_bytes = 0; // of all entries, complete; kept so that an insertion does not count them all
};

} // namespace jet
