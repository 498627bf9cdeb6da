// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/FieldType.h"

namespace jet::sql {

std::int32_t fieldType(const Column& column) noexcept {
    switch (column.type) {
    case ColumnType::Boolean:
        return fieldtype::kBoolean;
    case ColumnType::Byte:
        return fieldtype::kByte;
    case ColumnType::Integer:
        return fieldtype::kSmallInteger;
    case ColumnType::Long:
        return fieldtype::kInteger;
    case ColumnType::Currency:
        return fieldtype::kCurrency;
    case ColumnType::Single:
        return fieldtype::kSingle;
    case ColumnType::Double:
        return fieldtype::kDouble;
    case ColumnType::Date:
        return fieldtype::kDate;
    case ColumnType::Text:
        return fieldtype::kText;
    case ColumnType::Ole:
        return fieldtype::kOle;
    case ColumnType::Memo:
        return fieldtype::kMemo;
    case ColumnType::Guid:
        return fieldtype::kGuid;
    case ColumnType::Numeric:
        return fieldtype::kNumeric;
    default:
        return fieldtype::kBinary;
    }
}

std::int32_t fieldType(const basic::Variant& value) noexcept {
    if (std::holds_alternative<bool>(value))
        return fieldtype::kBoolean;
    if (std::holds_alternative<std::int32_t>(value))
        return fieldtype::kInteger;
    if (std::holds_alternative<double>(value))
        return fieldtype::kDouble;
    return std::holds_alternative<basic::Date>(value) ? fieldtype::kDate : fieldtype::kText;
}

} // namespace jet::sql
