// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The desk between the user-interface thread, which says what is wanted of a message and reads what is known,
// and the playing thread, which makes it so. Neither ever waits for the other; only waitForCompletion()
// waits, and only as long as it is told. What the playing thread tells about an order that is no longer the
// newest is dropped. Positions are seconds. The groups below say which thread calls what.

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/Aside.h"
#include "platform/mediagraph/IMediaEvent.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>

namespace mediagraph {

enum class PlayState { Stopped, Paused, Playing };

struct PlayOrder {
    PlayState state = PlayState::Stopped;
    double position = 0;          // where to begin, or to go on with a new seekNumber
    std::uint64_t seekNumber = 0; // grows with each new position
    std::uint64_t number = 0;     // grows with each order
    bool isLeaving = false;       // the graph is gone: let the device go and end
};

class Playback {
public:
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    static constexpr std::chrono::seconds kSilenceLimit{5};

    explicit Playback(double duration, Now now = Clock::now)
        : m_now(std::move(now)), m_duration(duration), m_patience(kSilenceLimits, m_now()) {}

    // User-interface thread.
    void want(PlayState state);
    void seek(double seconds);
    void leave();
    double duration() const noexcept { return m_duration; }
    // Throws a failure that was not told yet, once; also when the playing thread told no position for
    // kSilenceLimit, be it at the start or later, while this was asked over and over: time in which the
    // program stood still does not count.
    double position();
    EventCode waitForCompletion(std::chrono::milliseconds timeout);

    // Playing thread. Waits until there is an order newer than `seen`, or wake(), or the time is over.
    PlayOrder next(std::uint64_t seen, std::optional<std::chrono::milliseconds> timeout);
    void moved(const PlayOrder& order, double seconds);
    void ended(const PlayOrder& order, EventCode code);
    void failed(const PlayOrder& order, basic::RuntimeError failure);

    // Any thread.
    void wake();

private:
    static constexpr WaitLimits kSilenceLimits{kSilenceLimit, kSilenceLimit};

    void beginPatience() { m_patience = Patience(kSilenceLimits, m_now()); }
    void change();
    void watchThread();
    void stop();
    void fail(basic::RuntimeError failure);
    bool isNewest(const PlayOrder& order) const { return order.number == m_order.number; }
    // An end counts once the failure behind it was told.
    bool isOver() const { return m_end && !m_failure; }

    const Now m_now;
    const double m_duration;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    PlayOrder m_order;
    bool m_isAwake = false;
    double m_position = 0;
    bool m_hasStarted = false;
    Patience m_patience; // while playing, since the playing thread was told or told something
    std::optional<EventCode> m_end;
    std::optional<basic::RuntimeError> m_failure;
};

} // namespace mediagraph
