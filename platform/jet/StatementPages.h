// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The pages that one statement needs, held in memory so that they can be decoded after the file was closed:
// those known beforehand, read in large runs, and every other one from the first time it is asked for. No
// page is held twice, so the size of the file bounds the memory. After detach() nothing is read any more.

#include "platform/jet/PageSnapshot.h"

#include <map>
#include <memory>

namespace jet {

class StatementPages final : public PageSource {
public:
    // The reader must live until detach().
    StatementPages(PageReader& reader, std::vector<PageNumber> known);

    void detach() noexcept { m_reader = nullptr; }

    const std::string& name() const override { return m_known.name(); }
    PageNumber pageCount() const override { return m_known.pageCount(); }
    PageBytes page(PageNumber number, PageBuffer& buffer) override;

private:
    std::vector<PageNumber> m_knownPages; // ascending
    PageSnapshot m_known;
    PageReader* m_reader;
    std::map<PageNumber, std::unique_ptr<PageBuffer>> m_others;
};

} // namespace jet
