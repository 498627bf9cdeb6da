// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The workstation's output devices, and the short wait that lets events run. The list is never empty: one
// record without a name says that there is no device. Failures are reported under the module "basAudio". What
// it is given must outlive it; user-interface thread.

#include "errors/ErrorHandler.h"
#include "platform/mediagraph/WaveOut.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace audio {

class basAudio {
public:
    // Blocks the thread for so many milliseconds.
    using Sleep = std::function<void(std::int32_t milliseconds)>;

    basAudio(errors::ErrorHandler& errorHandler, mediagraph::WaveOut& waveOut, Sleep sleep = systemSleep)
        : m_errors(errorHandler), m_waveOut(waveOut), m_sleep(std::move(sleep)) {}

    // All devices in the order of the system, or the one record without a name: never a part of the list.
    std::vector<mediagraph::WaveOutCaps> GetAudioOutDevices();

    // Ten sleeps of a tenth of the time, each followed by the events that are pending then. What a handler of
    // these throws is ignored. The caller looks at its state anew afterwards.
    void PauseWithEvents(const std::int32_t& milliseconds);

private:
    static void systemSleep(std::int32_t milliseconds);
    std::vector<mediagraph::WaveOutCaps> allDevices(std::uint32_t count);

    errors::ErrorHandler& m_errors;
    mediagraph::WaveOut& m_waveOut;
    Sleep m_sleep;
};

} // namespace audio
