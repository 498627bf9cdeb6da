// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lets work that may hang run on a thread of its own while the calling thread waits as Waiting says. Work
// that does not end in its time is left behind: its thread goes on until the work returns, and its result is
// thrown away. So the work must own, or share, everything it touches. The calling thread is the
// user-interface one.

#include "platform/basic/DetachedThread.h"
#include "platform/mediagraph/Waiting.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <utility>

namespace mediagraph {

// What the work tells while it is at it, and is told.
struct Progress {
    std::atomic<std::size_t> steps = 0;    // anything that grows while there is progress
    std::atomic<bool> isAbandoned = false; // nobody waits any more
};

struct WaitLimits {
    std::chrono::milliseconds withoutProgress;
    std::chrono::milliseconds total;
};

// Watches over one piece of work: whether its time is over. Time between two looks counts up to half a second
// only: while the machine slept, or the program was stopped, the work had no chance to get on either.
class Patience {
public:
    using Clock = std::chrono::steady_clock;

    explicit Patience(WaitLimits limits, Clock::time_point now = Clock::now())
        : m_limits(limits), m_lastLook(now) {}
    bool isOver(std::size_t steps, Clock::time_point now = Clock::now());

private:
    static constexpr std::chrono::milliseconds kLongestTurn{500};

    WaitLimits m_limits;
    Clock::time_point m_lastLook;
    Clock::duration m_total{};
    Clock::duration m_withoutProgress{};
    std::size_t m_steps = 0;
};

class Aside {
public:
    explicit Aside(Waiting& waiting) : m_waiting(waiting) {}

    // What `work` answers or throws. Error 57 with `lateText` when its time is over or nobody waits any more,
    // 7 without a thread.
    template <typename Result>
    Result run(WaitLimits limits, const std::string& lateText, std::function<Result(Progress&)> work) {
        const auto progress = std::make_shared<Progress>();
        std::packaged_task<Result()> task([progress, work = std::move(work)] { return work(*progress); });
        std::future<Result> result = task.get_future();
        basic::startDetached(
            [task = std::make_shared<std::packaged_task<Result()>>(std::move(task))] { (*task)(); });
        Patience patience(limits);
        while (result.wait_for(kGlance) != std::future_status::ready) {
            if (patience.isOver(progress->steps) || !m_waiting.pass(kTurn)) {
                progress->isAbandoned = true;
                late(lateText);
            }
        }
        return result.get();
    }

private:
    static constexpr std::chrono::milliseconds kGlance{2};
    static constexpr std::chrono::milliseconds kTurn{10};

    [[noreturn]] static void late(const std::string& text);

    Waiting& m_waiting;
};

} // namespace mediagraph
