// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The forms' unit of length: 15 twips are one logical pixel (1440 twips to the inch at 96 pixels to the
// inch).

#include <compare>
#include <cstdint>

namespace basic {

inline constexpr std::int32_t kTwipsPerPixel = 15;

struct Twips {
    std::int32_t value = 0;
    constexpr auto operator<=>(const Twips&) const = default;
};

// Rounds towards zero, as the platform's integer division does.
constexpr std::int32_t toPixels(Twips length) noexcept {
    return length.value / kTwipsPerPixel;
}
constexpr Twips fromPixels(std::int32_t pixels) noexcept {
    return {pixels * kTwipsPerPixel};
}

} // namespace basic
