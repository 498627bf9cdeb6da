// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What stands behind a record set: a fixed number of rows whose values are asked for one by one. Column types
// are the data library's numbers.

#include "platform/basic/Variant.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace jet {

struct ResultColumn {
    std::string name;
    std::int32_t type = 0;
};

class RowSource {
public:
    explicit RowSource(std::vector<ResultColumn> columns) : m_columns(std::move(columns)) {}
    RowSource(const RowSource&) = delete;
    RowSource& operator=(const RowSource&) = delete;
    virtual ~RowSource() = default;

    const std::vector<ResultColumn>& columns() const noexcept { return m_columns; }
    virtual std::size_t rowCount() const = 0;
    // Both within bounds.
    virtual basic::Variant value(std::size_t row, std::size_t column) = 0;

protected:
    void setColumns(std::vector<ResultColumn> columns) { m_columns = std::move(columns); }

private:
    std::vector<ResultColumn> m_columns;
};

} // namespace jet
