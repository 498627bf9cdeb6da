// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/RowOrder.h"

#include "platform/jet/sql/ValueComparison.h"

#include <algorithm>
#include <numeric>

namespace jet::sql {

void RowOrder::add(ValueDecoder& decoder, const RowView& row) {
    for (const OrderColumn& column : m_columns)
        m_keys.push_back(decoder.value(row, *column.name.column));
}

// A log is stored in the order of its numbers and asked for in the opposite one: turning it round is all.
void RowOrder::apply(std::vector<RowPointer>& rows) const {
    if (m_columns.empty())
        return;
    if (isDescendingThroughout(rows.size())) {
        std::ranges::reverse(rows);
        return;
    }
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [this](std::size_t a, std::size_t b) { return isBefore(a, b); });
    std::vector<RowPointer> sorted(rows.size());
    std::ranges::transform(order, sorted.begin(), [&rows](std::size_t row) { return rows[row]; });
    rows = std::move(sorted);
}

bool RowOrder::isDescendingThroughout(std::size_t count) const {
    for (std::size_t row = 1; row < count; ++row)
        if (!isBefore(row, row - 1))
            return false;
    return true;
}

bool RowOrder::isBefore(std::size_t left, std::size_t right) const {
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const basic::Variant& a = m_keys[left * m_columns.size() + i];
        const basic::Variant& b = m_keys[right * m_columns.size() + i];
        if (sortsBefore(a, b))
            return m_columns[i].isAscending;
        if (sortsBefore(b, a))
            return !m_columns[i].isAscending;
    }
    return false;
}

} // namespace jet::sql
