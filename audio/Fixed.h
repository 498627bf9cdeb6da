// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Floating-point numbers as fixed-point ones with four decimal places, rounded half to even.

#include "platform/basic/RuntimeError.h"
#include "platform/basic/Variant.h"

#include <cmath>
#include <cstdint>

namespace audio {

// Error 6 beyond the range, and for what is not a number.
inline basic::Currency toCurrency(double value) {
    constexpr double kLimit = 9.2e18;
    const double scaled = std::nearbyint(value * 10'000);
    if (!(std::abs(scaled) < kLimit))
        throw basic::RuntimeError(basic::kOverflow);
    return {static_cast<std::int64_t>(scaled)};
}

inline double toDouble(basic::Currency value) {
    return static_cast<double>(value.tenThousandths) / 10'000;
}

} // namespace audio
