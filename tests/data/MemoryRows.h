// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Rows of a test's own behind a record set.

#include "platform/jet/RowSource.h"

namespace data {

using Row = std::vector<basic::Variant>;

class MemoryRows final : public jet::RowSource {
public:
    MemoryRows(std::vector<jet::ResultColumn> columns, std::vector<Row> rows)
        : RowSource(std::move(columns)), m_rows(std::move(rows)) {}

    std::size_t rowCount() const override { return m_rows.size(); }
    basic::Variant value(std::size_t row, std::size_t column) override { return m_rows[row][column]; }

private:
    std::vector<Row> m_rows;
};

} // namespace data
