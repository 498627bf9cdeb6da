// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lays out one row of a table out of the stored bytes of its fields. Layout: docs/jet4-format.md, "Rows".

#include "platform/jet/ByteBuilder.h"
#include "platform/jet/TableDefinition.h"

#include <optional>
#include <span>

namespace jet {

// One column's part of a row; no bytes at all where it is Null. A Boolean has no bytes of its own.
struct RowField {
    std::optional<Bytes> stored;
    bool isTrue = false; // Boolean only
};

class RowEncoder {
public:
    // The definition must outlive the encoder.
    explicit RowEncoder(const TableDefinition& table);

    // The row's size with `variableBytes` in its variable columns.
    std::size_t size(std::size_t variableBytes) const noexcept;
    // `fields` are in the order of the definition's columns. kProviderFailure when the row is too long for a
    // page.
    Bytes encode(std::span<const RowField> fields) const;

private:
    Bytes fixedArea(std::span<const RowField> fields) const;
    std::vector<const Bytes*> variableFields(std::span<const RowField> fields) const;
    Bytes nullMask(std::span<const RowField> fields) const;

    const TableDefinition& m_table;
    std::size_t m_fixedSize = 0;
};

} // namespace jet
