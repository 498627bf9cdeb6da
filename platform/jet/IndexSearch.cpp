// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexSearch.h"

#include "platform/jet/IndexNodeDecoder.h"

namespace jet {

std::vector<RowPointer> IndexSearch::find(const RealIndex& index, const KeyBytes& key) {
    std::vector<RowPointer> rows;
    PageNumber page = leafOf(index.root, key);
    KeyBytes last;
    while (page != 0) {
        const IndexNode leaf = node(page);
        if (!leaf.isLeaf)
            placeOf(page).fail("a node stands among the leaves of the index");
        if (leaf.entries.empty())
            break;
        if (leaf.entries.front().bytes <= last) // a chain that runs in a circle ends here, too
            placeOf(page).fail("the index entries are out of order");
        for (std::size_t at = leaf.lowerBound(key); at < leaf.entries.size(); ++at) {
            if (!leaf.entries[at].bytes.starts_with(key))
                return rows;
            rows.push_back(leaf.entries[at].row());
        }
        last = leaf.entries.back().bytes;
        page = leaf.next;
    }
    return rows;
}

// 0 when the key is above all there are.
PageNumber IndexSearch::leafOf(PageNumber root, const KeyBytes& key) const {
    PageNumber page = root;
    for (std::size_t level = 0; level < format::indexPage::kMaxLevels; ++level) {
        const IndexNode here = node(page);
        if (here.isLeaf)
            return page;
        const std::size_t at = here.lowerBound(key);
        page = at < here.entries.size() ? here.entries[at].child : here.tail;
        if (page == 0)
            return 0;
    }
    placeOf(page).fail("the index has too many levels");
}

IndexNode IndexSearch::node(PageNumber page) const {
    PageBuffer buffer;
    return decodeIndexNode(m_source.page(page, buffer), m_table.page(), placeOf(page));
}

} // namespace jet
