// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Pages of one database held in memory: read in few large runs, after which the file may be closed. Takes as
// much memory as the pages asked for, which the size of the file bounds. A page that was not asked for is a
// RuntimeError kProviderFailure.

#include "platform/jet/PageMemory.h"
#include "platform/jet/PageReader.h"

#include <string>
#include <vector>

namespace jet {

class PageSnapshot final : public PageSource {
public:
    // `pages` in any order, also with repetitions. Short gaps between them are read along.
    PageSnapshot(PageReader& reader, std::vector<PageNumber> pages);

    const std::string& name() const override { return m_name; }
    PageNumber pageCount() const override { return m_pageCount; } // of the file
    PageBytes page(PageNumber number, PageBuffer& buffer) override;

private:
    struct Run {
        PageNumber first = 0;
        PageNumber count = 0;
        std::size_t offset = 0; // in m_bytes
    };

    void planRuns(const std::vector<PageNumber>& pages);
    const Run& findRun(PageNumber number) const;

    std::string m_name;
    PageNumber m_pageCount;
    std::vector<Run> m_runs;
    PageMemory m_bytes;
};

} // namespace jet
