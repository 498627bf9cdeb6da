// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How long the machine itself stood still since the watch began: a borrowed processor may be away for a tenth
// of a second, and no player is exact to less than that at such a moment. On a machine of one's own that is a
// few milliseconds.

#include <atomic>
#include <chrono>
#include <thread>

namespace mediagraph::testing {

class StallWatch {
public:
    // Seconds: the longest that a thread that wanted to run did not.
    double longest() const { return m_longest; }

private:
    void watch(const std::stop_token& stop) {
        using Clock = std::chrono::steady_clock;
        constexpr std::chrono::milliseconds kBeat{5};
        for (auto before = Clock::now(); !stop.stop_requested();) {
            std::this_thread::sleep_for(kBeat);
            const auto now = Clock::now();
            const double late = std::chrono::duration<double>(now - before - kBeat).count();
            if (late > m_longest)
                m_longest = late;
            before = now;
        }
    }

    std::atomic<double> m_longest = 0;
    std::jthread m_thread{[this](const std::stop_token& stop) { watch(stop); }};
};

} // namespace mediagraph::testing
