// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/StatementPages.h"

#include <algorithm>
#include <utility>

namespace jet {
namespace {

std::vector<PageNumber> sorted(std::vector<PageNumber> pages) {
    std::ranges::sort(pages);
    return pages;
}

} // namespace

StatementPages::StatementPages(PageReader& reader, std::vector<PageNumber> known)
    : m_knownPages(sorted(std::move(known))), m_known(reader, m_knownPages), m_reader(&reader) {}

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
