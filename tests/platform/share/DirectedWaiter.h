// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A waiter that has all the time there is, or none at all: no test depends on how fast the machine is.

#include "platform/share/FileDescriptor.h"
#include "platform/share/ThreadWaiter.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace share::testing {

class DirectedWaiter final : public Waiter {
public:
    bool mayWait() const override { return !isCancelled && !m_isWaiting; }
    Waited untilReadable(int descriptor, std::chrono::milliseconds atMost) override {
        waits.push_back(atMost);
        m_last = FileDescriptor(::dup(descriptor));
        m_isWaiting = true;
        if (const auto now = std::exchange(meanwhile, nullptr))
            now();
        m_isWaiting = false;
        if (isCancelled)
            return Waited::Cancelled;
        if (patience == 0)
            return Waited::TimeOver;
        --patience;
        return awaitLast();
    }
    // What was waited for last has come, whether it was waited for to the end or not.
    Waited awaitLast() { return m_waiter.untilReadable(m_last.get(), std::chrono::hours(1)); }

    int patience = std::numeric_limits<int>::max(); // how many waits it has time for
    bool isCancelled = false;
    std::function<void()> meanwhile; // done in the next wait
    std::vector<std::chrono::milliseconds> waits;

private:
    bool m_isWaiting = false;
    ThreadWaiter m_waiter;
    FileDescriptor m_last;
};

} // namespace share::testing
