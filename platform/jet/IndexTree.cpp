// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexTree.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/IndexNodeDecoder.h"
#include "platform/jet/IndexNodeEncoder.h"

namespace jet {
namespace {

constexpr std::size_t kMaxKey = format::indexPage::kEntrySpace / 5; // so that every split leaves room

bool fits(const IndexNode& node, std::size_t from, std::size_t to) {
    IndexNode part;
    part.isLeaf = node.isLeaf;
    part.entries.assign(node.entries.begin() + static_cast<std::ptrdiff_t>(from),
                        node.entries.begin() + static_cast<std::ptrdiff_t>(to));
    part.recount();
    return part.encodedSize() <= format::indexPage::kEntrySpace;
}

std::size_t middle(const IndexNode& node) {
    std::size_t bytes = 0;
    for (const IndexEntry& entry : node.entries)
        bytes += entry.bytes.size();
    std::size_t at = 0;
    for (std::size_t below = 0; at + 1 < node.entries.size() && below < bytes / 2; ++at)
        below += node.entries[at].bytes.size();
    return at;
}

// Where to cut a node that holds too much: before the new entry when it came last on its level, as ascending
// record numbers do; in the middle otherwise. A first or last entry that shares less of its key than the
// others do can make both halves too long, and is cut off alone then.
std::size_t splitPoint(const IndexNode& node, std::size_t grownAt) {
    const std::size_t last = node.entries.size() - 1;
    const std::size_t preferred = grownAt >= last && node.next == 0 ? last : middle(node);
    for (const std::size_t at : {preferred, last, std::size_t{1}})
        if (fits(node, 0, at) && fits(node, at, node.entries.size()))
            return at;
    throw basic::RuntimeError(basic::kInternalError, "An index page that cannot be split");
}

} // namespace

IndexTree::IndexTree(WriteCache& cache, PageAllocator& allocator, const RealIndex& index, PageNumber owner)
    : m_cache(cache), m_allocator(allocator), m_pages(cache, allocator, index.usageMap), m_root(index.root),
      m_owner(owner) {}

IndexTree::HeldNode& IndexTree::held(PageNumber page, std::size_t depth) {
    const auto found = m_nodes.find(page);
    if (found != m_nodes.end())
        return found->second;
    const Place place{m_cache.name(), {}, page, kNoRow};
    if (depth >= format::indexPage::kMaxLevels)
        place.fail("the index has too many levels");
    PageBuffer buffer;
    IndexNode node = decodeIndexNode(m_cache.page(page, buffer), m_owner, place);
    if (!node.isLeaf && node.entries.empty() && node.tail == 0)
        place.fail("the index page leads nowhere");
    return m_nodes.emplace(page, HeldNode{std::move(node), static_cast<std::uint8_t>(depth), false})
        .first->second;
}

IndexNode& IndexTree::change(PageNumber page, std::size_t depth) {
    HeldNode& node = held(page, depth);
    node.isChanged = true;
    return node.node;
}

PageNumber IndexTree::addNode(IndexNode node, std::size_t depth) {
    const PageNumber page = m_allocator.allocate();
    m_pages.add(page);
    m_nodes.insert_or_assign(page, HeldNode{std::move(node), static_cast<std::uint8_t>(depth), true});
    return page;
}

IndexTree::Path IndexTree::descend(std::string_view bytes) {
    Path path{{m_root, 0}};
    while (true) {
        const IndexNode& node = held(path.back().page, path.size() - 1).node;
        std::size_t at = node.lowerBound(bytes);
        if (!node.isLeaf && at == node.entries.size() && node.tail == 0)
            --at; // above all there is: belongs to the last child
        path.back().entry = at;
        if (node.isLeaf)
            return path;
        path.push_back({at < node.entries.size() ? node.entries[at].child : node.tail, 0});
    }
}

bool IndexTree::contains(const KeyBytes& key) {
    const Path path = descend(key);
    const IndexNode* leaf = &held(path.back().page, path.size() - 1).node;
    std::size_t at = path.back().entry;
    if (at == leaf->entries.size() && leaf->next != 0) {
        leaf = &held(leaf->next, path.size() - 1).node;
        at = 0;
    }
    return at < leaf->entries.size() && leaf->entries[at].key() == key;
}

void IndexTree::checkLength(const KeyBytes& key) const {
    if (key.size() > kMaxKey)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  m_cache.name() + ": the value is too long to be indexed");
}

void IndexTree::insert(const KeyBytes& key, RowPointer row) {
    checkLength(key);
    IndexEntry entry = IndexEntry::make(key, row);
    Path path = descend(entry.bytes);
    change(path.back().page, path.size() - 1).insert(path.back().entry, std::move(entry));
    raiseKeys(path);
    splitUpwards(std::move(path));
}

// Each entry of a node repeats the last one of its child.
void IndexTree::raiseKeys(const Path& path) {
    for (std::size_t depth = path.size() - 1; depth > 0; --depth) {
        const IndexNode& child = held(path[depth].page, depth).node;
        const Step& parent = path[depth - 1];
        const IndexNode& node = held(parent.page, depth - 1).node;
        if (parent.entry == node.entries.size() || child.tail != 0 ||
            node.entries[parent.entry].bytes == child.entries.back().bytes)
            return;
        change(parent.page, depth - 1).replaceKey(parent.entry, child.entries.back().bytes);
    }
}

void IndexTree::splitUpwards(Path path) {
    for (std::size_t depth = path.size(); depth-- > 0;) {
        if (held(path[depth].page, depth).node.encodedSize() <= format::indexPage::kEntrySpace)
            continue;
        if (depth == 0) {
            splitRoot(path);
            ++depth;
        }
        split(path, depth);
    }
}

// The root's entries move one level down, into a page of their own that is still to be split.
void IndexTree::splitRoot(Path& path) {
    for (auto& [page, node] : m_nodes)
        ++node.depth;
    IndexNode below = std::move(change(m_root, 0));
    IndexNode root;
    root.isLeaf = false;
    const bool hasTail = below.tail != 0;
    const KeyBytes last = below.entries.back().bytes;
    const PageNumber page = addNode(std::move(below), 1);
    if (hasTail)
        root.tail = page;
    else
        root.insert(0, {last, page});
    m_nodes[m_root] = HeldNode{std::move(root), 0, true};
    path.front().page = page;
    path.insert(path.begin(), Step{m_root, 0});
}

// Cuts a page of the path in two and tells the page above.
void IndexTree::split(Path& path, std::size_t depth) {
    const Step& step = path[depth];
    Step& above = path[depth - 1];
    IndexNode& left = change(step.page, depth);
    IndexNode right;
    right.isLeaf = left.isLeaf;
    left.moveTail(splitPoint(left, step.entry), right);
    std::swap(left.tail, right.tail);
    const KeyBytes leftLast = left.entries.back().bytes;
    const KeyBytes rightLast = right.entries.back().bytes;
    const PageNumber rightPage = addNode(std::move(right), depth);
    linkAfter(step.page, rightPage, depth);

    IndexNode& parent = change(above.page, depth - 1);
    if (above.entry == parent.entries.size()) {
        parent.insert(above.entry, {leftLast, step.page});
        parent.tail = rightPage;
        return;
    }
    parent.replaceKey(above.entry, leftLast);
    ++above.entry;
    parent.insert(above.entry, {rightLast, rightPage});
}

void IndexTree::linkAfter(PageNumber left, PageNumber right, std::size_t depth) {
    const PageNumber next = held(left, depth).node.next;
    change(left, depth).next = right;
    change(right, depth).previous = left;
    change(right, depth).next = next;
    if (next != 0)
        change(next, depth).previous = right;
}

void IndexTree::store() {
    for (const auto& [page, node] : m_nodes)
        if (node.isChanged)
            encodeIndexNode(node.node, m_owner,
                            m_cache.edit(page,
                                         node.node.isLeaf ? WriteStage::IndexLeaves : WriteStage::IndexNodes,
                                         node.depth));
    m_nodes.clear();
}

} // namespace jet
