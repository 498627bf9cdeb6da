// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How long, and how, a change waits until nobody else is in the database: a number of tries with a pause of
// random length between two, so that several who wait do not meet again and again. A reading waits as long
// for a server that starts anew.

#include <chrono>
#include <functional>

namespace jet {

struct SharingWait {
    using Sleep = std::function<void(std::chrono::milliseconds)>;

    static constexpr std::chrono::milliseconds kShortest{20};
    static constexpr std::chrono::milliseconds kLongest{180};
    static constexpr int kUsualTries = 50; // five seconds

    int tries = kUsualTries;
    Sleep sleep = sleepFor;

    static void sleepFor(std::chrono::milliseconds time);
    // Between the shortest and the longest.
    static std::chrono::milliseconds randomPause();
};

} // namespace jet
