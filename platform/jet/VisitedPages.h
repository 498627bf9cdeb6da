// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A page source that notes which pages were asked for, on its way to another one. For checking.

#include "platform/jet/PageSource.h"

#include <vector>

namespace jet {

class VisitedPages final : public PageSource {
public:
    explicit VisitedPages(PageSource& source) : m_source(source) {}

    const std::string& name() const override { return m_source.name(); }
    PageNumber pageCount() const override { return m_source.pageCount(); }
    PageBytes page(PageNumber number, PageBuffer& buffer) override {
        m_visited.push_back(number);
        return m_source.page(number, buffer);
    }

    // In the order of asking, with repetitions.
    const std::vector<PageNumber>& visited() const noexcept { return m_visited; }

private:
    PageSource& m_source;
    std::vector<PageNumber> m_visited;
};

} // namespace jet
