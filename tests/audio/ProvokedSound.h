// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The world of one provoked failure: the engine over recorded sound, reporting to the trial. A call that was
// made to fail stands in the record once when it was not tried again, and twice when it was.

#include "tests/audio/AudioWorld.h"
#include "tests/errors/Provocation.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace audio {

inline constexpr const char* kMessage = R"(\\srv01\Quillamar_0$\MBX\12\C1.wav)";

inline std::ptrdiff_t timesIn(const std::vector<std::string>& log, const std::string& beginning) {
    return std::count_if(log.begin(), log.end(),
                         [&](const std::string& call) { return call.starts_with(beginning); });
}

class ProvokedSound {
public:
    explicit ProvokedSound(errors::Trial& aTrial) : trial(aTrial) {}

    std::shared_ptr<ReachableWave> newWave() {
        return std::make_shared<ReachableWave>(WaveServices{trial, boxes, sound, devices, values, clock});
    }
    std::shared_ptr<ReachableWave> playing() {
        auto wave = newWave();
        wave->PlayWave(kMessage);
        return wave;
    }
    // The first such call from now on fails.
    void fail(const std::string& call) {
        sound.takeLog();
        sound.fail(call);
    }
    bool wasTriedAgain(const std::string& call) const { return timesIn(sound.log, call) >= 2; }
    bool did(const std::string& call) const { return timesIn(sound.log, call) >= 1; }

    errors::Trial& trial;
    data::RecordedBoxes boxes;
    RecordedSound sound;
    SetClock clock;
    data::SettingsWorld settings;
    data::basRegistry values{settings.registry, boxes};
    basAudio devices{trial, sound, [](std::int32_t) {}};
};

} // namespace audio
