// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the platform tells of a wave output device, laid out as its WAVEOUTCAPS structure with single-byte
// characters: 52 bytes. The name is UTF-8, cut at a whole character, ended by a NUL and filled up with NULs;
// no two devices of one list have the same name, not even without case.

#include <array>
#include <cstdint>
#include <string>

namespace mediagraph {

struct WaveOutCaps {
    std::uint16_t ManufacturerId = 0;
    std::uint16_t ProductId = 0;
    std::uint32_t DriverVersion = 0;
    std::array<char, 32> ProductName{};
    std::uint32_t Formats = 0;
    std::uint16_t Channels = 0;
    std::uint16_t Reserved = 0;
    std::uint32_t Support = 0;

    bool operator==(const WaveOutCaps&) const = default;
};

inline constexpr std::uint32_t kWaveOutCapsSize = 52;
static_assert(sizeof(WaveOutCaps) == kWaveOutCapsSize);

} // namespace mediagraph
