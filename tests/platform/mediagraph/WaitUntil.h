// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Waits for a condition that another thread or process brings about, and for nothing else.

#include <chrono>
#include <thread>

namespace mediagraph::testing {

// False when it did not come in time, which is generous: a loaded machine is slow.
template <typename Condition>
bool waitUntil(Condition condition, std::chrono::seconds limit = std::chrono::seconds{20}) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
    }
    return true;
}

} // namespace mediagraph::testing
