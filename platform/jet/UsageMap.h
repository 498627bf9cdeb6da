// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A set of pages as a database stores it: the data pages of a table, those with free space, the pages of an
// index or of long values, or the free pages of the file. Read whole, never larger than the file whatever the
// map's bytes say. Plain data after that. Layout: docs/jet4-format.md, "Usage maps".

#include "platform/jet/PageSource.h"
#include "platform/jet/RowPointer.h"

#include <optional>
#include <vector>

namespace jet {

class UsageMap {
public:
    static UsageMap read(PageSource& source, RowPointer where, std::string_view table = {});

    // Members within the file, ascending.
    const std::vector<PageNumber>& pages() const noexcept { return m_pages; }
    bool contains(PageNumber page) const;
    // The first member that lies beyond the end of the file. Usual in the map of free pages, damage
    // elsewhere.
    std::optional<PageNumber> firstBeyondEnd() const noexcept { return m_firstBeyondEnd; }
    // Members, every one of which must lie within the file; throws otherwise.
    const std::vector<PageNumber>& pagesWithinFile() const;

    RowPointer where() const noexcept { return m_where; }
    bool isInline() const noexcept { return m_isInline; }
    // The pages that hold the bits of a map that is not inline.
    const std::vector<PageNumber>& bitmapPages() const noexcept { return m_bitmapPages; }
    // The map says nothing about this page and all after it.
    std::uint64_t coveredEnd() const noexcept { return m_coveredEnd; }

private:
    class Reader;

    std::string m_file;
    std::string m_table;
    RowPointer m_where;
    bool m_isInline = true;
    std::uint64_t m_coveredEnd = 0;
    std::vector<PageNumber> m_pages;
    std::vector<PageNumber> m_bitmapPages;
    std::optional<PageNumber> m_firstBeyondEnd;
};

} // namespace jet
