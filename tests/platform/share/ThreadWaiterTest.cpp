// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/ThreadWaiter.h"

#include "platform/share/smb/PacketSocket.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <fstream>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace share {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

TEST(ThreadWaiter, NoticesWhatComesAndWhatDoesNot) {
    auto [here, there] = smb::PacketSocket::pair();
    ThreadWaiter waiter;
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 1ms), Waited::TimeOver);
    there.send(std::vector<std::byte>(1));
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 60min), Waited::Ready);
}

TEST(ThreadWaiter, NoticesThatTheOtherEndIsGone) {
    auto [here, there] = smb::PacketSocket::pair();
    there = smb::PacketSocket();
    ThreadWaiter waiter;
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 60min), Waited::Ready);
    EXPECT_EQ(here.receive(), std::nullopt);
    EXPECT_FALSE(here.send(std::vector<std::byte>(1)));
}

TEST(ThreadWaiter, MayNotWaitOnceItIsCancelled) {
    ThreadWaiter waiter;
    EXPECT_TRUE(waiter.mayWait());
    waiter.cancel();
    EXPECT_FALSE(waiter.mayWait());
    EXPECT_FALSE(waiter.mayWait());
}

TEST(ThreadWaiter, EndsAWaitThatRunsWhenItIsCancelled) {
    auto [here, there] = smb::PacketSocket::pair();
    ThreadWaiter waiter;
    std::jthread canceller([&waiter] { waiter.cancel(); });
    EXPECT_EQ(waiter.untilReadable(here.descriptor(), 60min), Waited::Cancelled);
}

// A process of its own, which answers what `work` answers, and can be stopped while it is at it.
class OwnProcess {
public:
    explicit OwnProcess(const std::function<int()>& work) : m_id(::fork()) {
        if (m_id < 0)
            throw std::runtime_error("fork");
        if (m_id == 0)
            ::_exit(work());
    }
    OwnProcess(const OwnProcess&) = delete;
    OwnProcess& operator=(const OwnProcess&) = delete;
    ~OwnProcess() {
        if (m_isOver)
            return;
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
    }

    // Begins when it sleeps in its work, and returns when it sleeps again or has ended.
    void standStill(milliseconds time) const {
        awaitSleep();
        ::kill(m_id, SIGSTOP);
        int status = 0;
        ::waitpid(m_id, &status, WUNTRACED);
        ASSERT_TRUE(WIFSTOPPED(status)) << status;
        std::this_thread::sleep_for(time);
        ::kill(m_id, SIGCONT);
        awaitSleep();
    }
    int answer() {
        int status = 0;
        ::waitpid(m_id, &status, 0);
        m_isOver = true;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    // Nobody tells that a process fell asleep.
    void awaitSleep() const {
        while (state() == 'R')
            std::this_thread::yield();
    }
    char state() const {
        std::ifstream file("/proc/" + std::to_string(m_id) + "/stat");
        std::string number;
        std::string name;
        char state = 0;
        file >> number >> name >> state;
        return state;
    }

    pid_t m_id;
    bool m_isOver = false;
};

// It waits for what never comes. Of the wait only the part in which it was stopped may be lost.
TEST(ThreadWaiter, DoesNotCountTheTimeInWhichItsProcessWasStopped) {
    static constexpr milliseconds kPart{100};
    constexpr int kPartsStopped = kPartsOfAWait / 2;
    auto [here, there] = smb::PacketSocket::pair();
    OwnProcess process([&waiting = here] {
        ThreadWaiter waiter;
        const auto start = std::chrono::steady_clock::now();
        waiting.send(std::vector<std::byte>(1));
        waiter.untilReadable(waiting.descriptor(), kPart * kPartsOfAWait);
        const auto parts = (std::chrono::steady_clock::now() - start) / kPart;
        return static_cast<int>(std::min<std::int64_t>(parts, 255));
    });
    there.receive();
    process.standStill(kPart * kPartsStopped);
    EXPECT_GE(process.answer(), kPartsStopped + kPartsOfAWait - 1);
}

// It is stopped for longer than the wait may take; the answer comes when it waits again.
TEST(ThreadWaiter, HearsAnAnswerThatComesAfterItsProcessWasStopped) {
    auto [here, there] = smb::PacketSocket::pair();
    OwnProcess process([&waiting = here] {
        ThreadWaiter waiter;
        waiting.send(std::vector<std::byte>(1));
        return static_cast<int>(waiter.untilReadable(waiting.descriptor(), milliseconds{1200}));
    });
    there.receive();
    process.standStill(milliseconds{1300});
    there.send(std::vector<std::byte>(1));
    EXPECT_EQ(process.answer(), static_cast<int>(Waited::Ready));
}

} // namespace
} // namespace share
