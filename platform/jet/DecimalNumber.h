// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Arithmetic on the 128-bit magnitude of a Decimal, as far as storing one in a column of another scale needs
// it.

#include "platform/basic/Variant.h"

#include <cstdint>

namespace jet {

basic::Decimal decimalFrom(std::int64_t value, std::uint8_t scale);

// The same number with `scale` decimal places. RuntimeError 6 when that would drop digits or when it has more
// than `precision` digits.
basic::Decimal rescaled(const basic::Decimal& number, std::uint8_t precision, std::uint8_t scale);

} // namespace jet
