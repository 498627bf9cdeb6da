// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How a caller waits for a server: a thread of its own simply sleeps, the user-interface thread lets its
// window live on meanwhile. Each thread brings its own waiter.

#include <chrono>

namespace share {

enum class Waited { Ready, TimeOver, Cancelled };

// The time of a wait is counted in parts, each of which counts once however long it took: while the machine
// slept, or the processes were stopped, the other side had no chance to answer either.
inline constexpr int kPartsOfAWait = 12;

// The length of one part, rounded up.
constexpr std::chrono::milliseconds partOf(std::chrono::milliseconds wait) {
    return (wait + std::chrono::milliseconds(kPartsOfAWait - 1)) / kPartsOfAWait;
}

class Waiter {
public:
    Waiter() = default;
    Waiter(const Waiter&) = delete;
    Waiter& operator=(const Waiter&) = delete;
    virtual ~Waiter() = default;

    // False when a wait would end at once as cancelled: whoever cannot take back what he begins asks first.
    virtual bool mayWait() const { return true; }

    // Returns when `descriptor` can be read (or its other end is gone), when the time is over, or when the
    // program is to end and nobody waits for servers any more.
    virtual Waited untilReadable(int descriptor, std::chrono::milliseconds atMost) = 0;
};

} // namespace share
