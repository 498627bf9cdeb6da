// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One index of a table for inserting. Its root keeps its page number for ever: when the root overflows, its
// entries move to new pages and the root becomes a level above them. A leaf that overflows keeps its lower
// entries; appended keys fill pages to the brim. Pages are held taken apart until store() puts them into the
// WriteCache, so that many insertions encode a page once. Layout: docs/jet4-format.md, "Indexes".

#include "platform/jet/IndexNode.h"
#include "platform/jet/PageAllocator.h"
#include "platform/jet/UsageMapWriter.h"

#include <unordered_map>

namespace jet {

class IndexTree {
public:
    // `owner` is the page of the table's definition.
    IndexTree(WriteCache& cache, PageAllocator& allocator, const RealIndex& index, PageNumber owner);

    bool contains(const KeyBytes& key);
    // kProviderFailure for a key that is too long for an index.
    void checkLength(const KeyBytes& key) const;
    void insert(const KeyBytes& key, RowPointer row);
    void store();

private:
    struct HeldNode {
        IndexNode node;
        std::uint8_t depth = 0; // below the root
        bool isChanged = false;
    };
    // A page on the way from the root to a leaf, and which entry led on.
    struct Step {
        PageNumber page;
        std::size_t entry; // the number of entries: by way of the tail
    };
    using Path = std::vector<Step>;

    HeldNode& held(PageNumber page, std::size_t depth);
    IndexNode& change(PageNumber page, std::size_t depth);
    PageNumber addNode(IndexNode node, std::size_t depth);
    Path descend(std::string_view bytes);
    void splitUpwards(Path path);
    void raiseKeys(const Path& path);
    void splitRoot(Path& path);
    void split(Path& path, std::size_t depth);
    void linkAfter(PageNumber left, PageNumber right, std::size_t depth);

    WriteCache& m_cache;
    PageAllocator& m_allocator;
    UsageMapWriter m_pages;
    PageNumber m_root;
    PageNumber m_owner;
    std::unordered_map<PageNumber, HeldNode> m_nodes;
};

} // namespace jet
