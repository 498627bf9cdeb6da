// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowEncoder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/ByteEditor.h"

#include <algorithm>

namespace jet {

using namespace format;

namespace {

std::size_t maskSize(const TableDefinition& table) {
    return (table.maxColumnCount + 7U) / 8U;
}

void addVariableArea(ByteBuilder& builder, const std::vector<const Bytes*>& fields) {
    std::vector<std::uint16_t> starts;
    for (const Bytes* field : fields) {
        starts.push_back(static_cast<std::uint16_t>(builder.size()));
        if (field != nullptr)
            builder.addBytes(*field);
    }
    builder.add16(static_cast<std::uint16_t>(builder.size()));
    for (auto start = starts.rbegin(); start != starts.rend(); ++start)
        builder.add16(*start);
    builder.add16(static_cast<std::uint16_t>(fields.size()));
}

} // namespace

RowEncoder::RowEncoder(const TableDefinition& table) : m_table(table) {
    for (const Column& column : table.columns)
        if (column.isFixed() && column.type != ColumnType::Boolean)
            m_fixedSize = std::max<std::size_t>(m_fixedSize, std::size_t{column.fixedOffset} + column.length);
}

std::size_t RowEncoder::size(std::size_t variableBytes) const noexcept {
    const std::size_t variableCount = m_table.variableColumnCount;
    const std::size_t offsets =
        variableCount == 0 ? 0 : row::kOffsetSize * (variableCount + 1) + row::kVariableCountSize;
    return row::kFixedArea + m_fixedSize + variableBytes + offsets + maskSize(m_table);
}

Bytes RowEncoder::encode(std::span<const RowField> fields) const {
    const auto variable = variableFields(fields);
    std::size_t variableBytes = 0;
    for (const Bytes* field : variable)
        variableBytes += field == nullptr ? 0 : field->size();
    if (size(variableBytes) > dataPage::kMaxRow)
        throw basic::RuntimeError(basic::kProviderFailure,
                                  "The record is too large: " + std::to_string(size(variableBytes)) + " of " +
                                      std::to_string(dataPage::kMaxRow) + " bytes");
    ByteBuilder builder;
    builder.bytes().reserve(size(variableBytes));
    builder.add16(m_table.maxColumnCount);
    builder.addBytes(fixedArea(fields));
    if (!variable.empty())
        addVariableArea(builder, variable);
    builder.addBytes(nullMask(fields));
    return builder.take();
}

Bytes RowEncoder::fixedArea(std::span<const RowField> fields) const {
    Bytes area(m_fixedSize);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Column& column = m_table.columns[i];
        if (column.isFixed() && column.type != ColumnType::Boolean && fields[i].stored)
            ByteEditor(area).copy(column.fixedOffset, *fields[i].stored);
    }
    return area;
}

std::vector<const Bytes*> RowEncoder::variableFields(std::span<const RowField> fields) const {
    std::vector<const Bytes*> variable(m_table.variableColumnCount, nullptr);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Column& column = m_table.columns[i];
        if (!column.isFixed() && column.type != ColumnType::Boolean && fields[i].stored)
            variable.at(column.variableIndex) = &*fields[i].stored;
    }
    return variable;
}

Bytes RowEncoder::nullMask(std::span<const RowField> fields) const {
    Bytes mask(maskSize(m_table));
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const Column& column = m_table.columns[i];
        const bool isSet =
            column.type == ColumnType::Boolean ? fields[i].isTrue : fields[i].stored.has_value();
        if (isSet)
            mask.at(column.number / 8U) |= std::byte{1} << column.number % 8U;
    }
    return mask;
}

} // namespace jet
