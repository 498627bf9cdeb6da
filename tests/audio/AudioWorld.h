// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the engine and the player stand on: sound that is written down, settings in a registry of
// their own, message boxes and error reports that are recorded, and a clock that the test sets.

#include "tests/audio/ReachableWave.h"
#include "tests/audio/RecordedSound.h"
#include "tests/audio/SetClock.h"
#include "tests/data/SettingsWorld.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace audio {

class AudioWorld : public testing::Test {
protected:
    static constexpr const char* kFile = R"(\\srv01\Quillamar_0$\MBX\12\C1.wav)";

    // Reports as "number procedure".
    std::vector<std::string> reported() const {
        std::vector<std::string> lines;
        for (const auto& report : errorHandler.reports)
            lines.push_back(std::to_string(report.number) + " " + report.procedure);
        return lines;
    }
    std::shared_ptr<ReachableWave> newWave() {
        return std::make_shared<ReachableWave>(
            WaveServices{errorHandler, messageBoxes, sound, devices, values, clock});
    }

    errors::RecordingErrorHandler errorHandler;
    data::RecordedBoxes messageBoxes;
    RecordedSound sound;
    SetClock clock;
    data::SettingsWorld settings;
    data::basRegistry values{settings.registry, messageBoxes};
    std::vector<std::int32_t> slept;
    basAudio devices{errorHandler, sound, [this](std::int32_t ms) { slept.push_back(ms); }};
};

} // namespace audio
