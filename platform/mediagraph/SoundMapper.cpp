// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/SoundMapper.h"

#include "platform/mediagraph/WaveOut.h"

namespace mediagraph {

std::string SoundMapper::Playback(const std::string& stored) {
    if (!stored.empty())
        return stored;
    WaveOutCaps first;
    if (m_devices.waveOutGetNumDevs() == 0 ||
        m_devices.waveOutGetDevCapsA(0, first, kWaveOutCapsSize) != kWaveNoError)
        return {};
    return first.ProductName.data();
}

} // namespace mediagraph
