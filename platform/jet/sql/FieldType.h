// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The data library's numbers for the types of fields.

#include "platform/basic/Variant.h"
#include "platform/jet/TableDefinition.h"

#include <cstdint>

namespace jet::sql {

namespace fieldtype {
inline constexpr std::int32_t kSmallInteger = 2;
inline constexpr std::int32_t kInteger = 3;
inline constexpr std::int32_t kSingle = 4;
inline constexpr std::int32_t kDouble = 5;
inline constexpr std::int32_t kCurrency = 6;
inline constexpr std::int32_t kDate = 7;
inline constexpr std::int32_t kBoolean = 11;
inline constexpr std::int32_t kByte = 17;
inline constexpr std::int32_t kGuid = 72;
inline constexpr std::int32_t kNumeric = 131;
inline constexpr std::int32_t kText = 202;
inline constexpr std::int32_t kMemo = 203;
inline constexpr std::int32_t kBinary = 204;
inline constexpr std::int32_t kOle = 205;
} // namespace fieldtype

std::int32_t fieldType(const Column& column) noexcept;
// Of a literal; text for Null.
std::int32_t fieldType(const basic::Variant& value) noexcept;

} // namespace jet::sql
