// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexChecker.h"

#include <algorithm>
#include <string>

namespace jet {

namespace layout = format::indexPage;

std::size_t IndexChecker::check(const RealIndex& index, const UsageMap& pages) {
    m_index = &index;
    m_pages = &pages;
    m_visited.clear();
    m_leaves.clear();
    m_found.clear();
    m_last = {};
    walk(index.root, 1);
    checkLeafChain();
    checkRows(placeOf(index.root));
    return m_found.size();
}

void IndexChecker::walk(PageNumber number, std::size_t level) {
    const Place place = placeOf(number);
    if (level > layout::kMaxLevels)
        place.fail("the index has too many levels");
    if (!m_pages->contains(number))
        place.fail("the page is missing in the index's usage map");
    if (std::ranges::find(m_visited, number) != m_visited.end())
        place.fail("the index reaches the page twice");
    m_visited.push_back(number);
    PageBuffer buffer;
    IndexPage page(m_source.page(number, buffer), place);
    if (page.owner() != m_table.page())
        place.fail("the index page belongs to " + std::to_string(page.owner()));
    if (page.isLeaf())
        walkLeaf(page);
    else
        walkNode(page, level);
    if (page.freeBytes() != layout::kEntrySpace - page.usedBytes())
        place.fail("the free bytes are not what the entries leave");
}

void IndexChecker::walkNode(IndexPage& page, std::size_t level) {
    while (page.nextEntry()) {
        walk(page.child(), level + 1);
        if (m_last.row != page.row() || !std::ranges::equal(m_last.key, page.key()))
            page.place().fail("the node's entry is not the last of its child " +
                              std::to_string(page.child()));
    }
    if (page.tail() != 0)
        walk(page.tail(), level + 1);
}

void IndexChecker::walkLeaf(IndexPage& page) {
    m_leaves.push_back(page.place().page);
    while (page.nextEntry())
        takeEntry(page);
}

void IndexChecker::takeEntry(const IndexPage& page) {
    const Place& place = page.place();
    Entry entry{{page.key().begin(), page.key().end()}, page.row()};
    if (!m_found.empty()) {
        if (entry <= m_last)
            place.fail("the index entries are out of order at row " + std::to_string(entry.row.row) +
                       " of page " + std::to_string(entry.row.page));
        checkUnique(page);
    }
    if (!std::ranges::binary_search(m_rows, entry.row))
        place.fail("the index refers to row " + std::to_string(entry.row.row) + " of page " +
                   std::to_string(entry.row.page) + ", which is not there");
    m_found.push_back(entry.row);
    m_last = std::move(entry);
}

// Rows without a value may repeat; in a key of several columns a missing value is not told apart here.
void IndexChecker::checkUnique(const IndexPage& page) const {
    const bool isNull = m_last.key.size() == 1;
    if (m_index->isUnique() && m_index->columns.size() == 1 && !isNull &&
        std::ranges::equal(m_last.key, page.key()))
        page.place().fail("the unique index holds a key twice");
}

void IndexChecker::checkLeafChain() {
    for (std::size_t i = 0; i < m_leaves.size(); ++i) {
        PageBuffer buffer;
        const IndexPage page(m_source.page(m_leaves[i], buffer), placeOf(m_leaves[i]));
        const PageNumber previous = i == 0 ? 0 : m_leaves[i - 1];
        const PageNumber next = i + 1 == m_leaves.size() ? 0 : m_leaves[i + 1];
        if (page.previous() != previous || page.next() != next)
            page.place().fail("the leaf is linked to " + std::to_string(page.previous()) + " and " +
                              std::to_string(page.next()) + " instead of " + std::to_string(previous) +
                              " and " + std::to_string(next));
    }
}

void IndexChecker::checkRows(const Place& place) const {
    std::vector<RowPointer> found = m_found;
    std::ranges::sort(found);
    if (std::ranges::adjacent_find(found) != found.end())
        place.fail("the index names a row twice");
    if (!m_index->ignoresNulls() && found.size() != m_rows.size())
        place.fail("the index has " + std::to_string(found.size()) + " entries for " +
                   std::to_string(m_rows.size()) + " rows");
}

} // namespace jet
