// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One row's bytes, cracked on demand: which columns are null and where the others lie. Nothing is copied or
// allocated; a view is as cheap to make anew for each row as to keep. Refers to the page's bytes. Bounds that
// do not fit the row throw RuntimeError kProviderFailure. Layout: docs/jet4-format.md, "Rows".

#include "platform/jet/ByteView.h"
#include "platform/jet/TableDefinition.h"

namespace jet {

class RowView {
public:
    RowView() = default;
    explicit RowView(const ByteView& row);

    // A column that the row does not know yet, because it was added later, is null. A boolean is never null
    // by itself: its value takes the place of the null bit.
    bool isNull(const Column& column) const { return !hasBit(column.number); }
    bool boolean(const Column& column) const { return hasBit(column.number); }
    // The stored bytes; none for a null and for a boolean.
    std::span<const std::byte> field(const Column& column) const;

    std::size_t columnCount() const noexcept { return m_columnCount; }
    const ByteView& bytes() const noexcept { return m_row; }
    const Place& place() const noexcept { return m_row.place(); }

private:
    bool hasBit(std::size_t number) const {
        return number < m_columnCount && (m_row.u8(m_maskStart + number / 8) >> number % 8 & 1U) != 0;
    }
    std::span<const std::byte> fixedField(const Column& column) const;
    std::span<const std::byte> variableField(std::size_t index) const;

    ByteView m_row;
    std::size_t m_columnCount = 0;
    std::size_t m_maskStart = 0;
};

} // namespace jet
