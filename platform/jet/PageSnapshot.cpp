// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageSnapshot.h"

#include <algorithm>

namespace jet {
namespace {

constexpr std::size_t kPageSize = format::page::kSize;
constexpr PageNumber kMaxGap = 8;   // pages that cost less than another round trip to the server
constexpr PageNumber kMaxRun = 256; // 1 MiB: what one read asks of the layers below

} // namespace

PageSnapshot::PageSnapshot(PageReader& reader, std::vector<PageNumber> pages)
    : m_name(reader.name()), m_pageCount(reader.pageCount()) {
    if (!std::ranges::is_sorted(pages))
        std::ranges::sort(pages);
    if (!pages.empty() && pages.back() >= m_pageCount)
        Place{m_name, {}, pages.back()}.fail("the page lies beyond the end of the file");
    planRuns(pages);
    if (m_runs.empty())
        return;
    const std::size_t size = m_runs.back().offset + m_runs.back().count * kPageSize;
    m_bytes = PageMemory(size);
    for (const Run& run : m_runs)
        reader.readRun(run.first, {m_bytes.data() + run.offset, run.count * kPageSize});
}

void PageSnapshot::planRuns(const std::vector<PageNumber>& pages) {
    for (const PageNumber page : pages) {
        if (!m_runs.empty()) {
            Run& run = m_runs.back();
            const PageNumber reach = page - run.first + 1; // never less than run.count: pages ascend
            if (reach <= run.count + kMaxGap && reach <= kMaxRun) {
                run.count = std::max(run.count, reach);
                continue;
            }
        }
        const std::size_t offset =
            m_runs.empty() ? 0 : m_runs.back().offset + m_runs.back().count * kPageSize;
        m_runs.push_back({page, 1, offset});
    }
}

PageBytes PageSnapshot::page(PageNumber number, PageBuffer& /*buffer*/) {
    const Run& run = findRun(number);
    const std::size_t offset = run.offset + (number - run.first) * kPageSize;
    return PageBytes(m_bytes.data() + offset, kPageSize);
}

const PageSnapshot::Run& PageSnapshot::findRun(PageNumber number) const {
    const auto after = std::ranges::upper_bound(m_runs, number, {}, &Run::first);
    if (after == m_runs.begin() || number - std::prev(after)->first >= std::prev(after)->count)
        Place{m_name, {}, number}.fail("the page was not read along");
    return *std::prev(after);
}

} // namespace jet
