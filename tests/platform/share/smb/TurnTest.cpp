// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Turn.h"

#include "platform/share/smb/Messages.h"
#include "platform/share/smb/PacketSocket.h"
#include "platform/share/smb/ThreadWaiter.h"
#include "tests/platform/share/ExpectError.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
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

TEST(ThreadWaiter, NoticesWhatComesAndWhatDoesNot) {
    auto [here, there] = PacketSocket::pair();
    ThreadWaiter waiter;
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 1ms), Waited::TimeOver);
    there.send(std::vector<std::byte>(1));
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 60min), Waited::Ready);
}

TEST(ThreadWaiter, NoticesThatTheOtherEndIsGone) {
    auto [here, there] = PacketSocket::pair();
    there = PacketSocket();
    ThreadWaiter waiter;
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 60min), Waited::Ready);
    EXPECT_EQ(here.receive(), std::nullopt);
    EXPECT_FALSE(here.send(std::vector<std::byte>(1)));
}

TEST(ThreadWaiter, EndsAWaitThatRunsWhenItIsCancelled) {
    auto [here, there] = PacketSocket::pair();
    ThreadWaiter waiter;
    std::jthread canceller([&waiter] { waiter.cancel(); });
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 60min), Waited::Cancelled);
}

// False once it sleeps.
bool isRunning(pid_t id) {
    std::ifstream file("/proc/" + std::to_string(id) + "/stat");
    std::string number;
    std::string name;
    char state = 0;
    file >> number >> name >> state;
    return state == 'R';
}

// A process of its own waits for what never comes, and is stopped meanwhile. Of the wait only the part in
// which it was stopped may be lost.
TEST(ThreadWaiter, DoesNotCountTheTimeInWhichItsProcessWasStopped) {
    constexpr auto kPart = 100ms;
    constexpr int kPartsStopped = kPartsOfAWait / 2;
    auto [here, there] = PacketSocket::pair();
    const pid_t id = ::fork();
    ASSERT_GE(id, 0);
    if (id == 0) {
        ThreadWaiter waiter;
        const auto start = std::chrono::steady_clock::now();
        here.send(std::vector<std::byte>(1));
        waiter.untilReadable(here.descriptor(), kPart * kPartsOfAWait);
        const auto parts = (std::chrono::steady_clock::now() - start) / kPart;
        ::_exit(static_cast<int>(std::min<std::int64_t>(parts, 255)));
    }
    there.receive();
    while (isRunning(id))
        std::this_thread::yield();
    ::kill(id, SIGSTOP);
    int status = 0;
    ::waitpid(id, &status, WUNTRACED);
    ASSERT_TRUE(WIFSTOPPED(status)) << status;
    std::this_thread::sleep_for(kPart * kPartsStopped);
    ::kill(id, SIGCONT);
    ::waitpid(id, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_GE(WEXITSTATUS(status), kPartsStopped + kPartsOfAWait - 1);
}

TEST(PacketSocket, BringsTheLargestPacketOverWhole) {
    auto [here, there] = PacketSocket::pair();
    std::vector<std::byte> packet(kMaximumPacketBytes, std::byte{0xAB});
    ASSERT_TRUE(here.send(packet));
    EXPECT_EQ(there.receive(), packet);
}

TEST(PacketSocket, RefusesALargerOne) {
    auto [here, there] = PacketSocket::pair();
    ASSERT_TRUE(here.send(std::vector<std::byte>(kMaximumPacketBytes + 1)));
    EXPECT_EQ(there.receive(), std::nullopt);
}

} // namespace
} // namespace share::smb
