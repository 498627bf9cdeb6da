// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SharingWait.h"

#include <random>
#include <thread>

namespace jet {

void SharingWait::sleepFor(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

std::chrono::milliseconds SharingWait::randomPause() {
    static thread_local std::minstd_rand generator{std::random_device{}()};
    std::uniform_int_distribution<std::chrono::milliseconds::rep> length(kShortest.count(), kLongest.count());
    return std::chrono::milliseconds(length(generator));
}

} // namespace jet
