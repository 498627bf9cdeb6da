// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Visits every live row of one table once, page by page in ascending order. A moved row is met at the place
// where it used to lie; its body elsewhere and deleted rows are passed over. Reads each page as it is
// reached and decodes nothing. Source, definition and names must outlive the scan.
// Layout: docs/jet4-format.md, "Rows".

#include "platform/jet/DataPage.h"
#include "platform/jet/RowPointer.h"
#include "platform/jet/RowView.h"
#include "platform/jet/TableDefinition.h"

#include <optional>
#include <string_view>
#include <vector>

namespace jet {

class TableScan {
public:
    TableScan(PageSource& source, const TableDefinition& table, std::string_view tableName);

    // Goes to the next row, first to the first one; false when there is none.
    bool next();
    // Valid until next().
    const RowView& row() const noexcept { return m_row; }
    // Where the row is known by, that is the place of its pointer if it was moved.
    RowPointer position() const noexcept;

    // The row at a known place; false when no live row is there. Goes on from that place with next().
    bool moveTo(RowPointer where);

private:
    bool nextPage();
    void openPage(PageNumber page);
    bool take(std::size_t slot);
    ByteView follow(const ByteView& pointer);
    Place placeOf(PageNumber page) const noexcept { return {m_source.name(), m_tableName, page}; }

    PageSource& m_source;
    std::string_view m_tableName;
    PageNumber m_owner;
    std::vector<PageNumber> m_pages;
    std::size_t m_nextPage = 0;
    std::size_t m_nextSlot = 0;
    std::optional<PageNumber> m_openPage; // the one in m_page
    DataPage m_page;
    RowView m_row;
    PageBuffer m_pageBuffer;
    PageBuffer m_movedBuffer;
};

} // namespace jet
