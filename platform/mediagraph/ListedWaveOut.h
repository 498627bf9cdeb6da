// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The platform's wave-out calls over the device list.

#include "platform/mediagraph/DeviceList.h"
#include "platform/mediagraph/WaveOut.h"

#include <optional>

namespace mediagraph {

class ListedWaveOut final : public WaveOut {
public:
    explicit ListedWaveOut(DeviceList devices) : m_devices(std::move(devices)) {}

    std::uint32_t waveOutGetNumDevs() override;
    std::uint32_t waveOutGetDevCapsA(std::uint32_t device, WaveOutCaps& record, std::uint32_t size) override;

private:
    DeviceList m_devices;
    std::optional<std::vector<OutputDevice>> m_seen;
};

} // namespace mediagraph
