// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/UsageMap.h"

#include "platform/jet/DataPage.h"

#include <algorithm>
#include <bit>

namespace jet {

namespace layout = format::usageMap;

// Fills one map; apart from it because reading needs the source and the result does not.
class UsageMap::Reader {
public:
    Reader(PageSource& source, UsageMap& map) : m_source(source), m_map(map) {}

    void run() {
        PageBuffer buffer;
        const Place place{m_map.m_file, m_map.m_table, m_map.m_where.page};
        const ByteView row =
            DataPage(m_source.page(m_map.m_where.page, buffer), place).row(m_map.m_where.row);
        const std::uint8_t type = row.u8(layout::kType);
        if (type > layout::kReference)
            row.fail("the usage map has the unknown type " + std::to_string(type));
        m_map.m_isInline = type == layout::kInline;
        if (m_map.m_isInline)
            readInline(row);
        else
            readReferences(row);
    }

private:
    void readInline(const ByteView& row) {
        const PageNumber start = row.u32(layout::kStartPage);
        const ByteView bitmap = row.view(layout::kBitmap, row.size() - layout::kBitmap);
        m_map.m_coveredEnd = std::uint64_t{start} + 8 * bitmap.size();
        addBits(bitmap, start);
    }

    void readReferences(const ByteView& row) {
        const std::size_t count = (row.size() - layout::kPointers) / layout::kPointerSize;
        m_map.m_coveredEnd = std::uint64_t{count} * layout::kPagesPerBitmap;
        for (std::size_t i = 0; i < count; ++i) {
            const PageNumber page = row.u32(layout::kPointers + i * layout::kPointerSize);
            if (page != 0)
                readBitmapPage(page, i * layout::kPagesPerBitmap);
        }
    }

    void readBitmapPage(PageNumber page, std::uint64_t start) {
        const Place place{m_map.m_file, m_map.m_table, page};
        if (start >= m_source.pageCount())
            place.fail("a usage map's page stands for pages beyond the end of the file");
        PageBuffer buffer;
        const ByteView view(m_source.page(page, buffer), place);
        if (view.u8(format::page::kType) != format::page::kUsageBitmap)
            view.fail("a page of a usage map is expected, the type is " +
                      std::to_string(view.u8(format::page::kType)));
        m_map.m_bitmapPages.push_back(page);
        addBits(view.view(layout::kPageBitmap, format::page::kSize - layout::kPageBitmap),
                static_cast<PageNumber>(start));
    }

    void addBits(const ByteView& bitmap, PageNumber start) {
        const std::uint64_t limit = m_source.pageCount();
        for (std::size_t i = 0; i < bitmap.size(); ++i) {
            for (unsigned bits = bitmap.u8(i); bits != 0; bits &= bits - 1) {
                const std::uint64_t page = start + 8 * i + static_cast<unsigned>(std::countr_zero(bits));
                if (page >= limit) {
                    m_map.m_firstBeyondEnd = static_cast<PageNumber>(page);
                    return;
                }
                m_map.m_pages.push_back(static_cast<PageNumber>(page));
            }
        }
    }

    PageSource& m_source;
    UsageMap& m_map;
};

UsageMap UsageMap::read(PageSource& source, RowPointer where, std::string_view table) {
    UsageMap map;
    map.m_file = source.name();
    map.m_table = table;
    map.m_where = where;
    Reader(source, map).run();
    return map;
}

bool UsageMap::contains(PageNumber page) const {
    return std::ranges::binary_search(m_pages, page);
}

const std::vector<PageNumber>& UsageMap::pagesWithinFile() const {
    if (m_firstBeyondEnd)
        Place{m_file, m_table, m_where.page, m_where.row}.fail("the usage map names page " +
                                                               std::to_string(*m_firstBeyondEnd) +
                                                               ", which lies beyond the end of the file");
    return m_pages;
}

} // namespace jet
