// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's list of wave output devices. The first one is the desktop's default as such, whatever it is
// at the moment of playing; the others follow as the sound server lists them. User-interface thread; both
// calls return in bounded time, start nothing and never throw.

#include "platform/mediagraph/WaveOutCaps.h"

#include <cstdint>

namespace mediagraph {

// The platform's return codes.
inline constexpr std::uint32_t kWaveNoError = 0;
inline constexpr std::uint32_t kWaveBadDeviceId = 2;
inline constexpr std::uint32_t kWaveInvalidParameter = 11;

class WaveOut {
public:
    WaveOut() = default;
    WaveOut(const WaveOut&) = delete;
    WaveOut& operator=(const WaveOut&) = delete;
    virtual ~WaveOut() = default;

    // Looks anew. 0 without a sound server and without a device that makes a sound.
    virtual std::uint32_t waveOutGetNumDevs() = 0;
    // From what waveOutGetNumDevs() saw last (looks itself when it was never called). `size` is
    // kWaveOutCapsSize, or the call fails and leaves the record alone.
    virtual std::uint32_t waveOutGetDevCapsA(std::uint32_t device, WaveOutCaps& record,
                                             std::uint32_t size) = 0;
};

} // namespace mediagraph
