// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ValueDecoder.h"

#include "platform/jet/TextCodec.h"

#include <algorithm>

namespace jet {
namespace {

basic::Binary binary(std::span<const std::byte> bytes) {
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    return {data, data + bytes.size()};
}

basic::Guid guid(const ByteView& field) {
    basic::Guid result;
    std::ranges::copy(field.slice(0, result.bytes.size()),
                      std::as_writable_bytes(std::span(result.bytes)).begin());
    return result;
}

basic::Decimal decimal(const ByteView& field, std::uint8_t scale) {
    basic::Decimal result;
    result.negative = field.u8(0) != 0;
    for (std::size_t word = 0; word < result.magnitude.size(); ++word)
        result.magnitude[word] = field.u32(1 + 4 * word);
    result.scale = scale;
    return result;
}

void appendShortText(std::string& to, std::span<const std::byte> field, const Column& column) {
    if (column.isFixed())
        appendPlainText(to, field);
    else
        appendText(to, field);
}

std::string shortText(std::span<const std::byte> field, const Column& column) {
    std::string text;
    appendShortText(text, field, column);
    return text;
}

basic::Variant plainValue(const ByteView& field, const Column& column) {
    switch (column.type) {
    case ColumnType::Byte:
        return field.u8(0);
    case ColumnType::Integer:
        return static_cast<std::int16_t>(field.u16(0));
    case ColumnType::Long:
        return static_cast<std::int32_t>(field.u32(0));
    case ColumnType::Currency:
        return basic::Currency{static_cast<std::int64_t>(field.u64(0))};
    case ColumnType::Single:
        return std::bit_cast<float>(field.u32(0));
    case ColumnType::Double:
        return std::bit_cast<double>(field.u64(0));
    case ColumnType::Date:
        return basic::Date{std::bit_cast<double>(field.u64(0))};
    case ColumnType::Guid:
        return guid(field);
    case ColumnType::Numeric:
        return decimal(field, column.scale);
    case ColumnType::Text:
        return shortText(field.bytes(), column);
    default:
        return binary(field.bytes());
    }
}

} // namespace

basic::Variant ValueDecoder::value(const RowView& row, const Column& column) {
    if (column.type == ColumnType::Boolean)
        return row.boolean(column);
    if (row.isNull(column))
        return basic::Null{};
    const std::span<const std::byte> field = row.field(column);
    if (column.type == ColumnType::Memo)
        return decodeText(m_longValues.read(field, row.place()));
    if (column.type == ColumnType::Ole)
        return binary(m_longValues.read(field, row.place()));
    return plainValue(ByteView(field, row.place()), column);
}

bool ValueDecoder::appendTextOf(std::string& to, const RowView& row, const Column& column) {
    if (row.isNull(column))
        return false;
    const std::span<const std::byte> field = row.field(column);
    if (column.type == ColumnType::Memo)
        appendText(to, m_longValues.read(field, row.place()));
    else
        appendShortText(to, field, column);
    return true;
}

} // namespace jet
