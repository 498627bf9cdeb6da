// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Sorts rows by the columns of an ORDER BY, rows with equal keys in the order they were added. Keeps one key
// per row and column while it lives.

#include "platform/jet/RowPointer.h"
#include "platform/jet/ValueDecoder.h"
#include "platform/jet/sql/Statement.h"

#include <vector>

namespace jet::sql {

class RowOrder {
public:
    // The columns must be bound and outlive it; none keeps the rows as they are.
    explicit RowOrder(const std::vector<OrderColumn>& columns) : m_columns(columns) {}

    void add(ValueDecoder& decoder, const RowView& row);
    // As many rows as were added, in that order.
    void apply(std::vector<RowPointer>& rows) const;

private:
    bool isBefore(std::size_t left, std::size_t right) const;
    bool isDescendingThroughout(std::size_t count) const;

    const std::vector<OrderColumn>& m_columns;
    std::vector<basic::Variant> m_keys;
};

} // namespace jet::sql
