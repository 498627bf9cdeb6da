// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowView.h"

#include <string>

namespace jet {

namespace layout = format::row;

RowView::RowView(const ByteView& row) : m_row(row), m_columnCount(row.u16(layout::kColumnCount)) {
    const std::size_t maskSize = (m_columnCount + 7) / 8;
    if (row.size() < layout::kFixedArea + maskSize)
        row.fail("the row is too short for its " + std::to_string(m_columnCount) + " columns");
    m_maskStart = row.size() - maskSize;
}

std::span<const std::byte> RowView::field(const Column& column) const {
    if (column.type == ColumnType::Boolean || isNull(column))
        return {};
    return column.isFixed() ? fixedField(column) : variableField(column.variableIndex);
}

std::span<const std::byte> RowView::fixedField(const Column& column) const {
    const std::size_t start = layout::kFixedArea + column.fixedOffset;
    if (start + column.length > m_maskStart)
        m_row.fail("column " + column.name + " lies beyond the end of the row");
    return m_row.slice(start, column.length);
}

// From the null mask backwards: the number of variable columns, then one offset for each, the first nearest,
// then the end of the last. So entry `index + 1` is the end of column `index`.
std::span<const std::byte> RowView::variableField(std::size_t index) const {
    if (m_maskStart < layout::kFixedArea + layout::kVariableCountSize)
        m_row.fail("the row is too short for variable columns");
    const std::size_t countAt = m_maskStart - layout::kVariableCountSize;
    const std::size_t count = m_row.u16(countAt);
    const std::size_t tableSize = (count + 1) * layout::kOffsetSize;
    if (countAt < layout::kFixedArea + tableSize)
        m_row.fail("the row is too short for its " + std::to_string(count) + " variable columns");
    if (index >= count)
        return {};
    const std::size_t startAt = countAt - (index + 1) * layout::kOffsetSize;
    const std::size_t start = m_row.u16(startAt);
    const std::size_t end = m_row.u16(startAt - layout::kOffsetSize);
    if (start < layout::kFixedArea || end < start || end > countAt - tableSize)
        m_row.fail("variable column " + std::to_string(index) + " has the bounds " + std::to_string(start) +
                   " to " + std::to_string(end));
    return m_row.slice(start, end - start);
}

} // namespace jet
