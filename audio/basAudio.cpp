// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/basAudio.h"

#include "errors/ErrorsIgnored.h"
#include "errors/Procedure.h"
#include "platform/forms/Events.h"

#include <chrono>
#include <thread>

namespace audio {
namespace {

constexpr int kRounds = 10;

} // namespace

std::vector<mediagraph::WaveOutCaps> basAudio::GetAudioOutDevices() {
    errors::Procedure proc{m_errors, "basAudio", "basAudio.GetAudioOutDevices"};
    std::vector<mediagraph::WaveOutCaps> devices(1);
    const std::uint32_t count = proc.value(std::uint32_t{0}, [&] { return m_waveOut.waveOutGetNumDevs(); });
    if (count == 0)
        return devices;
    proc.step([&] {
        if (auto all = allDevices(count); !all.empty())
            devices = std::move(all);
    });
    return devices;
}

// Empty when one device could not be asked.
std::vector<mediagraph::WaveOutCaps> basAudio::allDevices(std::uint32_t count) {
    std::vector<mediagraph::WaveOutCaps> devices(count);
    for (std::uint32_t i = 0; i < count; ++i)
        if (m_waveOut.waveOutGetDevCapsA(i, devices[i], mediagraph::kWaveOutCapsSize) !=
            mediagraph::kWaveNoError)
            return {};
    return devices;
}

// No trap (basAudio, PauseWithEvents): ignores all errors.
void basAudio::PauseWithEvents(const std::int32_t& milliseconds) {
    const std::int32_t slice = milliseconds / kRounds;
    for (int round = 0; round < kRounds; ++round) {
        errors::withErrorsIgnored([&] { m_sleep(slice); });
        errors::withErrorsIgnored([] { forms::doEvents(); });
    }
}

void basAudio::systemSleep(std::int32_t milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

} // namespace audio
