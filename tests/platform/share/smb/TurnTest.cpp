// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Turn.h"

#include "platform/share/ThreadWaiter.h"
#include "tests/platform/share/ExpectError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace share::smb {
namespace {

using namespace std::chrono_literals;

TEST(Turn, IsHadByOneThreadAtATime) {
    TurnGate gate;
    std::atomic<int> inside = 0;
    std::atomic<int> most = 0;
    int count = 0; // what the turn protects
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&] {
                ThreadWaiter waiter;
                for (int round = 0; round < 500; ++round) {
                    const Turn turn(gate, waiter, 60s);
                    most = std::max<int>(most, ++inside);
                    ++count;
                    --inside;
                }
            });
    }
    EXPECT_EQ(most, 1);
    EXPECT_EQ(count, 2000);
}

TEST(Turn, IsGivenUpWhenItDoesNotCome) {
    TurnGate gate;
    ThreadWaiter waiter;
    const Turn first(gate, waiter, 1s);
    EXPECT_ERROR(basic::kPathNotFound, Turn(gate, waiter, 1ms));
}

TEST(Turn, IsNotWaitedForAtTheEndOfTheProgram) {
    TurnGate gate;
    ThreadWaiter waiter;
    const Turn first(gate, waiter, 1s);
    waiter.cancel();
    EXPECT_ERROR(basic::kPathNotFound, Turn(gate, waiter, 60min));
}

} // namespace
} // namespace share::smb
