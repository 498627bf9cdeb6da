// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/FieldValue.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/DecimalNumber.h"

#include <cmath>
#include <limits>
#include <optional>

namespace jet {
namespace {

[[noreturn]] void fail(std::int32_t number, const Column& column) {
    throw basic::RuntimeError(number,
                              std::string(basic::errorText(number)) + " (column " + column.name + ")");
}

struct AsNumber {
    std::optional<double> operator()(bool value) const { return value ? -1.0 : 0.0; }
    std::optional<double> operator()(std::uint8_t value) const { return value; }
    std::optional<double> operator()(std::int16_t value) const { return value; }
    std::optional<double> operator()(std::int32_t value) const { return value; }
    std::optional<double> operator()(float value) const { return static_cast<double>(value); }
    std::optional<double> operator()(double value) const { return value; }
    std::optional<double> operator()(basic::Currency value) const {
        return static_cast<double>(value.tenThousandths) / 10000.0;
    }
    template <typename Other>
    std::optional<double> operator()(const Other&) const {
        return std::nullopt;
    }
};

double number(const basic::Variant& value, const Column& column) {
    const std::optional<double> found = std::visit(AsNumber{}, value);
    if (!found)
        fail(basic::kTypeMismatch, column);
    return *found;
}

template <typename Integer>
basic::Variant integer(const basic::Variant& value, const Column& column) {
    const double rounded = std::nearbyint(number(value, column));
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max())))
        fail(basic::kOverflow, column);
    return static_cast<Integer>(rounded);
}

basic::Variant single(const basic::Variant& value, const Column& column) {
    const double wide = number(value, column);
    if (std::isfinite(wide) && std::abs(wide) > static_cast<double>(std::numeric_limits<float>::max()))
        fail(basic::kOverflow, column);
    return static_cast<float>(wide);
}

basic::Variant currency(const basic::Variant& value, const Column& column) {
    if (std::holds_alternative<basic::Currency>(value))
        return value;
    const double scaled = std::nearbyint(number(value, column) * 10000.0);
    if (!(std::abs(scaled) < 9223372036854775807.0))
        fail(basic::kOverflow, column);
    return basic::Currency{static_cast<std::int64_t>(scaled)};
}

basic::Variant decimal(const basic::Variant& value, const Column& column) {
    if (const auto* given = std::get_if<basic::Decimal>(&value))
        return rescaled(*given, column.precision, column.scale);
    if (const auto* given = std::get_if<basic::Currency>(&value))
        return rescaled(decimalFrom(given->tenThousandths, 4), column.precision, column.scale);
    const auto whole = std::get<std::int32_t>(integer<std::int32_t>(value, column));
    if (number(value, column) != static_cast<double>(whole))
        fail(basic::kTypeMismatch, column);
    return rescaled(decimalFrom(whole, 0), column.precision, column.scale);
}

basic::Variant date(const basic::Variant& value, const Column& column) {
    if (std::holds_alternative<basic::Date>(value))
        return value;
    return basic::Date{number(value, column)};
}

template <typename Kind>
basic::Variant exactly(const basic::Variant& value, const Column& column) {
    if (!std::holds_alternative<Kind>(value))
        fail(basic::kTypeMismatch, column);
    return value;
}

} // namespace

basic::Variant toColumnValue(const basic::Variant& value, const Column& column) {
    if (basic::isNull(value))
        return value;
    switch (column.type) {
    case ColumnType::Boolean:
        return number(value, column) != 0;
    case ColumnType::Byte:
        return integer<std::uint8_t>(value, column);
    case ColumnType::Integer:
        return integer<std::int16_t>(value, column);
    case ColumnType::Long:
        return integer<std::int32_t>(value, column);
    case ColumnType::Currency:
        return currency(value, column);
    case ColumnType::Single:
        return single(value, column);
    case ColumnType::Double:
        return number(value, column);
    case ColumnType::Date:
        return date(value, column);
    case ColumnType::Numeric:
        return decimal(value, column);
    case ColumnType::Guid:
        return exactly<basic::Guid>(value, column);
    case ColumnType::Binary:
    case ColumnType::Ole:
        return exactly<basic::Binary>(value, column);
    case ColumnType::Text:
    case ColumnType::Memo:
        return exactly<std::string>(value, column);
    }
    throw basic::RuntimeError(basic::kProviderFailure,
                              "Column " + column.name + " is of a type that cannot be written");
}

} // namespace jet
