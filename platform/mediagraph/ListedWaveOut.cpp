// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/ListedWaveOut.h"

#include <algorithm>

namespace mediagraph {
namespace {

// The platform's bits for 8 and 16 bits, mono and stereo, at 11.025, 22.05 and 44.1 kHz: the sound server
// converts them all.
constexpr std::uint32_t kEveryStandardFormat = 0x00000FFF;
constexpr std::uint16_t kStereo = 2;

WaveOutCaps capsOf(const OutputDevice& device) {
    WaveOutCaps caps;
    std::ranges::copy(device.name, caps.ProductName.begin());
    caps.Formats = kEveryStandardFormat;
    caps.Channels = kStereo;
    return caps;
}

} // namespace

std::uint32_t ListedWaveOut::waveOutGetNumDevs() {
    m_seen = m_devices.look();
    return static_cast<std::uint32_t>(m_seen->size());
}

std::uint32_t ListedWaveOut::waveOutGetDevCapsA(std::uint32_t device, WaveOutCaps& record,
                                                std::uint32_t size) {
    if (size != kWaveOutCapsSize)
        return kWaveInvalidParameter;
    if (!m_seen)
        waveOutGetNumDevs();
    if (device >= m_seen->size())
        return kWaveBadDeviceId;
    record = capsOf((*m_seen)[device]);
    return kWaveNoError;
}

} // namespace mediagraph
