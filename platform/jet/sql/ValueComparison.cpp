// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/ValueComparison.h"

#include "platform/basic/TextCompare.h"

#include <cmath>
#include <type_traits>

namespace jet::sql {
namespace {

constexpr long double kPerCurrencyUnit = 10'000.0L;
constexpr long double kPerWord = 4'294'967'296.0L;

long double decimalNumber(const basic::Decimal& decimal) noexcept {
    long double number = 0;
    for (const std::uint32_t word : decimal.magnitude)
        number = number * kPerWord + static_cast<long double>(word);
    number /= std::pow(10.0L, static_cast<long double>(decimal.scale));
    return decimal.negative ? -number : number;
}

struct ToNumber {
    long double operator()(bool value) const noexcept { return value ? -1 : 0; }
    long double operator()(const basic::Currency& value) const noexcept {
        return static_cast<long double>(value.tenThousandths) / kPerCurrencyUnit;
    }
    long double operator()(const basic::Date& value) const noexcept { return value.days; }
    long double operator()(const basic::Decimal& value) const noexcept { return decimalNumber(value); }
    template <typename Value>
    long double operator()(const Value& value) const noexcept {
        if constexpr (std::is_arithmetic_v<Value>)
            return static_cast<long double>(value);
        else
            return 0;
    }
};

std::strong_ordering compareBytes(const basic::Variant& left, const basic::Variant& right) {
    const auto bytes = [](const basic::Variant& value) {
        if (const auto* guid = std::get_if<basic::Guid>(&value))
            return basic::Binary(guid->bytes.begin(), guid->bytes.end());
        return std::get<basic::Binary>(value);
    };
    return bytes(left) <=> bytes(right);
}

} // namespace

ValueClass classOf(const basic::Variant& value) noexcept {
    if (basic::isNull(value))
        return ValueClass::Null;
    if (std::holds_alternative<std::string>(value))
        return ValueClass::Text;
    if (std::holds_alternative<basic::Binary>(value) || std::holds_alternative<basic::Guid>(value))
        return ValueClass::Bytes;
    return ValueClass::Number;
}

ValueClass classOf(const Column& column) noexcept {
    switch (column.type) {
    case ColumnType::Boolean:
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Currency:
    case ColumnType::Single:
    case ColumnType::Double:
    case ColumnType::Date:
    case ColumnType::Numeric:
        return ValueClass::Number;
    case ColumnType::Text:
    case ColumnType::Memo:
        return ValueClass::Text;
    default:
        return ValueClass::Bytes;
    }
}

long double numberOf(const basic::Variant& value) noexcept {
    return std::visit(ToNumber{}, value);
}

std::partial_ordering compareValues(const basic::Variant& left, const basic::Variant& right) {
    const ValueClass kind = classOf(left);
    if (kind == ValueClass::Null || kind != classOf(right))
        return std::partial_ordering::unordered;
    if (kind == ValueClass::Number)
        return numberOf(left) <=> numberOf(right);
    if (kind == ValueClass::Text)
        return basic::compareText(std::get<std::string>(left), std::get<std::string>(right)) <=> 0;
    return compareBytes(left, right);
}

// Numbers that are not numbers come after Null and before all others, so that the order is one.
bool sortsBefore(const basic::Variant& left, const basic::Variant& right) {
    const auto rank = [](const basic::Variant& value) {
        const ValueClass kind = classOf(value);
        if (kind == ValueClass::Number)
            return std::isnan(numberOf(value)) ? 1 : 2;
        return kind == ValueClass::Null ? 0 : kind == ValueClass::Text ? 3 : 4;
    };
    if (const int leftRank = rank(left), rightRank = rank(right); leftRank != rightRank)
        return leftRank < rightRank;
    return compareValues(left, right) == std::partial_ordering::less;
}

} // namespace jet::sql
