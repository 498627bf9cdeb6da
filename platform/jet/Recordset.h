// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The rows that a statement answered: forward-only and read-only, as they were when it was executed. The
// database file is closed already; fields are decoded when they are asked for. Owns its pages. Errors: 3021
// without a current row, 3265 for an unknown field, 3704 when closed or when the statement answers no rows.
// One thread at a time.

#include "platform/basic/Variant.h"
#include "platform/jet/RowSource.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace jet {

class Recordset {
public:
    // Closed from the beginning, for statements that answer no rows.
    Recordset() = default;
    explicit Recordset(std::unique_ptr<RowSource> rows) : m_rows(std::move(rows)) {}

    // 0 closed, 1 open.
    std::int32_t State() const noexcept { return m_rows ? 1 : 0; }
    void Close();

    bool eof() const { return m_current >= rows().rowCount(); }
    // Always -1: a forward-only set does not tell.
    std::int32_t RecordCount() const;
    void MoveFirst();
    void MoveNext();

    std::size_t fieldCount() const { return rows().columns().size(); }
    const std::string& fieldName(std::size_t index) const { return column(index).name; }
    // The data library's type numbers: 11 for a Boolean.
    std::int32_t fieldType(std::size_t index) const { return column(index).type; }
    std::int32_t fieldType(std::string_view name) const { return column(indexOf(name)).type; }
    // Names compare without case; a name in the same case goes first, then the first equal one.
    basic::Variant Field(std::size_t index) const;
    basic::Variant Field(std::string_view name) const { return Field(indexOf(name)); }

private:
    RowSource& rows() const;
    const ResultColumn& column(std::size_t index) const;
    std::size_t indexOf(std::string_view name) const;

    std::unique_ptr<RowSource> m_rows;
    std::size_t m_current = 0;
};

} // namespace jet
