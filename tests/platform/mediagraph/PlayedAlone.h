// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A player and its desk without a playing thread: the test itself takes each step, so that nothing happens
// between two of them. The desk's clock stands still, and a busy machine is never late.

#include "platform/mediagraph/Player.h"
#include "tests/platform/mediagraph/SoundWorld.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <memory>
#include <string>

namespace mediagraph::testing {

class PlayedAlone {
public:
    PlayedAlone(const SoundWorld& world, const std::string& file, const OutputDevice& device)
        : m_isStarted(gst_init_check(nullptr, nullptr, nullptr) != FALSE),
          m_samples(std::make_shared<const Samples>(world.decoded(file))),
          desk(
              std::make_shared<Playback>(m_samples->seconds(), [] { return Playback::Clock::time_point(); })),
          player({desk, m_samples, device}) {
        EXPECT_TRUE(m_isStarted);
    }

private:
    bool m_isStarted;
    std::shared_ptr<const Samples> m_samples;

public:
    std::shared_ptr<Playback> desk;
    Player player;

    PlayOrder newest() const { return desk->next(0, std::chrono::milliseconds{0}); }
    // Steps, over and over, until the condition holds.
    template <typename Condition>
    bool stepsUntil(Condition condition) {
        return waitUntil([&] {
            player.step(newest());
            return condition();
        });
    }
    bool comesTo(double seconds) {
        return stepsUntil([&] { return desk->position() >= seconds; });
    }
    bool comesToItsEnd() {
        return stepsUntil(
            [&] { return errorOf([&] { desk->waitForCompletion(std::chrono::milliseconds{0}); }) == 0; });
    }
};

} // namespace mediagraph::testing
