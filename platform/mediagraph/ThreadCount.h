// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Counts the threads that play, so that the program can see them end before it ends itself. Any thread.

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace mediagraph {

class ThreadCount {
public:
    void enter() {
        const std::lock_guard lock(m_mutex);
        ++m_count;
    }
    void exit() {
        const std::lock_guard lock(m_mutex);
        --m_count;
        m_changed.notify_all();
    }
    // Whether there is none left, after at most `limit`.
    bool waitForNone(std::chrono::milliseconds limit) {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, limit, [this] { return m_count == 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
};

} // namespace mediagraph
