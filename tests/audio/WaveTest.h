// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An engine over a graph that writes down its calls, and what the engine tells meanwhile.

#include "audio/clsWave.h"
#include "tests/audio/AudioWorld.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace audio {

class WaveTest : public AudioWorld {
protected:
    WaveTest() {
        QObject::connect(wave.get(), &clsWave::PlayDone, [this] { ++done; });
        QObject::connect(wave.get(), &clsWave::Progress,
                         [this](basic::Currency percent, basic::Currency duration) {
                             progress.push_back({percent.tenThousandths, duration.tenThousandths});
                         });
        sound.takeLog();
    }
    void play() {
        ASSERT_TRUE(wave->PlayWave(kFile));
        sound.takeLog();
    }
    void tick() const { Q_EMIT wave->Timer1().ThatTime(); }
    // The only call by which a position is set, after the calls of `command`.
    std::string moveOf(const std::function<void()>& command) {
        sound.takeLog();
        command();
        for (const std::string& call : sound.takeLog())
            if (call.starts_with("CurrentPosition ="))
                return call;
        return "";
    }

    std::shared_ptr<ReachableWave> wave = newWave();
    int done = 0;
    std::vector<std::pair<std::int64_t, std::int64_t>> progress;
};

} // namespace audio
