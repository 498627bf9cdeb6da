// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/StatementPages.h"

#include <algorithm>

namespace jet {

StatementPages::StatementPages(PageReader& reader, const std::vector<PageNumber>& known)
    : m_known(reader, known), m_knownPages(known), m_reader(&reader) {
    std::ranges::sort(m_knownPages);
}

PageBytes StatementPages::page(PageNumber number, PageBuffer& buffer) {
    if (std::ranges::binary_search(m_knownPages, number))
        return m_known.page(number, buffer);
    if (const auto found = m_others.find(number); found != m_others.end())
        return PageBytes(*found->second);
    if (m_reader == nullptr)
        Place{name(), {}, number}.fail("the page was not read along");
    auto bytes = std::make_unique<PageBuffer>();
    const PageBytes read = m_reader->page(number, *bytes);
    if (read.data() != bytes->data())
        std::ranges::copy(read, bytes->begin());
    return PageBytes(*m_others.emplace(number, std::move(bytes)).first->second);
}

} // namespace jet
