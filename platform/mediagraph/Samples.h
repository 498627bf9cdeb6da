// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A whole message as the device plays it: 16-bit samples in memory, the channels of one moment side by side.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mediagraph {

struct Samples {
    std::uint32_t rate = 0; // frames a second
    std::uint32_t channels = 0;
    std::vector<std::int16_t> values;

    std::size_t frames() const noexcept { return channels == 0 ? 0 : values.size() / channels; }
    double seconds() const noexcept {
        return rate == 0 ? 0 : static_cast<double>(frames()) / static_cast<double>(rate);
    }
};

} // namespace mediagraph
