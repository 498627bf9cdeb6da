// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A value as a database column holds it. Text is UTF-8 everywhere; units that are no valid UTF-16 in a
// database become U+FFFD when they are decoded. Dates are local wall-clock time of the writer, without zone.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace basic {

struct Null {
    bool operator==(const Null&) const = default;
};

// Fixed-point number with four decimal places, held as ten-thousandths.
struct Currency {
    std::int64_t tenThousandths = 0;
    bool operator==(const Currency&) const = default;
};

// Days since 1899-12-30; the fraction is a positive time of day also before that day (-1.25 is
// 1899-12-29 06:00).
struct Date {
    double days = 0;
    bool operator==(const Date&) const = default;
};

// The 16 bytes as stored: the first three groups are little-endian.
struct Guid {
    std::array<std::uint8_t, 16> bytes{};
    bool operator==(const Guid&) const = default;
};

// Sign, 128-bit magnitude (most significant word first) and the number of decimal places.
struct Decimal {
    bool negative = false;
    std::array<std::uint32_t, 4> magnitude{};
    std::uint8_t scale = 0;
    bool operator==(const Decimal&) const = default;
};

using Binary = std::vector<std::uint8_t>;

using Variant = std::variant<Null, bool, std::uint8_t, std::int16_t, std::int32_t, float, double, Currency,
                             Date, Guid, Decimal, Binary, std::string>;

inline bool isNull(const Variant& value) noexcept {
    return std::holds_alternative<Null>(value);
}

} // namespace basic
