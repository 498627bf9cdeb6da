// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexPage.h"

#include <string>

namespace jet {

namespace layout = format::indexPage;

IndexPage::IndexPage(PageBytes bytes, const Place& place) : m_view(bytes, place) {
    const std::uint8_t type = m_view.u8(format::page::kType);
    if (type != format::page::kIndexLeaf && type != format::page::kIndexNode)
        m_view.fail("an index page is expected, the type is " + std::to_string(type));
    m_isLeaf = type == format::page::kIndexLeaf;
    m_prefix = m_view.u16(layout::kPrefixLength);
}

bool IndexPage::nextEntry() {
    const std::size_t end = findEnd();
    if (end == 0)
        return false;
    const std::span<const std::byte> stored = m_view.slice(layout::kEntries + m_end, end - m_end);
    if (m_end != 0) {
        if (m_entry.size() < m_prefix)
            m_view.fail("the entries share more bytes than the first one has");
        m_entry.resize(m_prefix);
    }
    m_entry.insert(m_entry.end(), stored.begin(), stored.end());
    m_end = end;
    parseEntry();
    return true;
}

// 0 when no entry follows.
std::size_t IndexPage::findEnd() const {
    for (std::size_t end = m_end + 1; end <= layout::kEntrySpace; ++end) {
        if ((m_view.u8(layout::kEntryEnds + end / 8) >> end % 8 & 1U) != 0)
            return end;
    }
    return 0;
}

void IndexPage::parseEntry() {
    const std::size_t child = m_isLeaf ? 0 : layout::kChildPointerSize;
    const ByteView entry(m_entry, m_view.place());
    if (entry.size() <= layout::kPointerSize + child)
        m_view.fail("the index entry that ends at " + std::to_string(m_end) + " is too short");
    m_keySize = entry.size() - layout::kPointerSize - child;
    m_row = {entry.u24BigEndian(m_keySize), entry.u8(m_keySize + 3)};
    m_child = m_isLeaf ? 0 : entry.u32BigEndian(m_keySize + layout::kPointerSize);
}

} // namespace jet
