// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/DecimalNumber.h"

#include "platform/basic/RuntimeError.h"

namespace jet {
namespace {

__extension__ using Magnitude = unsigned __int128;

Magnitude magnitudeOf(const basic::Decimal& number) {
    Magnitude value = 0;
    for (const std::uint32_t word : number.magnitude)
        value = value << 32U | word;
    return value;
}

void setMagnitude(basic::Decimal& number, Magnitude value) {
    for (std::size_t i = number.magnitude.size(); i-- > 0; value >>= 32U)
        number.magnitude[i] = static_cast<std::uint32_t>(value);
}

Magnitude powerOfTen(unsigned exponent) {
    Magnitude power = 1;
    for (unsigned i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

[[noreturn]] void failOverflow() {
    throw basic::RuntimeError(basic::kOverflow, "The number does not fit the precision of the column");
}

} // namespace

basic::Decimal decimalFrom(std::int64_t value, std::uint8_t scale) {
    basic::Decimal number;
    number.negative = value < 0;
    number.scale = scale;
    const auto bits = static_cast<std::uint64_t>(value);
    setMagnitude(number, number.negative ? ~bits + 1 : bits);
    return number;
}

basic::Decimal rescaled(const basic::Decimal& number, std::uint8_t precision, std::uint8_t scale) {
    Magnitude value = magnitudeOf(number);
    const Magnitude limit = powerOfTen(precision);
    for (std::uint8_t at = number.scale; at > scale; --at) {
        if (value % 10 != 0)
            failOverflow();
        value /= 10;
    }
    for (std::uint8_t at = number.scale; at < scale; ++at) {
        if (value >= limit)
            failOverflow();
        value *= 10;
    }
    if (value >= limit)
        failOverflow();
    basic::Decimal result{number.negative, {}, scale};
    setMagnitude(result, value);
    return result;
}

} // namespace jet
