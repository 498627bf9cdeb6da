// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How values compare in conditions and in ORDER BY: numbers, dates and Booleans (True is -1) as numbers, text
// without case, binary values and identifiers by their bytes.

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"

#include <compare>

namespace jet::sql {

enum class ValueClass { Null, Number, Text, Bytes };

ValueClass classOf(const basic::Variant& value) noexcept;
ValueClass classOf(const Column& column) noexcept;
// Null goes with everything.
constexpr bool areComparable(ValueClass left, ValueClass right) noexcept {
    return left == right || left == ValueClass::Null || right == ValueClass::Null;
}

// Neither is Null and both are of one class, else they are unordered.
std::partial_ordering compareValues(const basic::Variant& left, const basic::Variant& right);
// For sorting: Null comes first.
bool sortsBefore(const basic::Variant& left, const basic::Variant& right);

// Of a value of class Number.
long double numberOf(const basic::Variant& value) noexcept;

} // namespace jet::sql
