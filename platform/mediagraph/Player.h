// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One message at one device, from the first order to the last: the playing thread's own object. There is a
// pipeline while the message plays; a paused one holds no device. step() carries out what the newest order
// wants and tells the desk what came of it. Playing thread only.

#include "platform/mediagraph/PlayingThread.h"
#include "platform/mediagraph/SoundPipeline.h"

#include <chrono>
#include <optional>
#include <string>

namespace mediagraph {

class Player {
public:
    explicit Player(const PlayingTask& task) : m_task(task) {}

    // False once the device has been let go after an order to leave.
    bool step(const PlayOrder& order);
    // How long step() has nothing to do unless it is woken; nothing: for ever.
    std::optional<std::chrono::milliseconds> idleTime() const;

private:
    using Clock = std::chrono::steady_clock;

    void play(const PlayOrder& order);
    void open(const PlayOrder& order);
    void listen(const PlayOrder& order);
    void look(const PlayOrder& order);
    void watchMovement(double position);
    void watchDevice(const PlayOrder& order);
    void loseDevice(const PlayOrder& order);
    void rest(const PlayOrder& order);
    void reportError(const PlayOrder& order, GstMessage* message);
    bool isDeviceGone() const;
    bool isLingering() const;

    PlayingTask m_task;
    std::optional<SoundPipeline> m_pipeline;
    std::uint64_t m_seekNumber = 0; // the pipeline's
    double m_position = 0;
    Clock::time_point m_moved; // when the position was seen to change, or could not yet
    std::string m_playsAt;     // the sound server's name of the device
    std::optional<Clock::time_point> m_ended;
    std::uint64_t m_endedOrder = 0;
};

} // namespace mediagraph
