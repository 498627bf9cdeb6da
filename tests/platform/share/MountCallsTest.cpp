// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountCalls.h"

#include "platform/share/ThreadWaiter.h"
#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <unistd.h>

#include <functional>
#include <latch>
#include <memory>
#include <thread>
#include <utility>

namespace share::testing {
namespace {

using namespace std::chrono_literals;

constexpr auto kMount = "/mnt/q";
constexpr auto kOtherMount = "/mnt/r";
constexpr auto kFew = MountCalls::Requests::Few;
constexpr auto kMany = MountCalls::Requests::Many;
constexpr auto kLong = 60min;

// Does something else before it waits, and keeps what it waits for.
class BusyWaiter final : public Waiter {
public:
    Waited untilReadable(int descriptor, std::chrono::milliseconds atMost) override {
        ++waits;
        longest = atMost;
        m_last = FileDescriptor(::dup(descriptor));
        if (const auto now = std::exchange(meanwhile, nullptr))
            now();
        return m_waiter.untilReadable(descriptor, atMost);
    }
    // The call that was waited for last has returned, whether it was waited for to the end or not.
    void awaitLast() { ASSERT_EQ(m_waiter.untilReadable(m_last.get(), kLong), Waited::Ready); }
    void cancel() noexcept { m_waiter.cancel(); }

    std::function<void()> meanwhile;
    int waits = 0;
    std::chrono::milliseconds longest{}; // that the last wait may take

private:
    ThreadWaiter m_waiter;
    FileDescriptor m_last;
};

class MountCallsTest : public ::testing::Test {
protected:
    ~MountCallsTest() override { goOn(); }

    // Hangs until goOn().
    std::function<int()> hanging() const {
        return [gate = m_gate] {
            gate->wait();
            return 1;
        };
    }
    static std::function<int()> quick() {
        return [] { return 2; };
    }
    void goOn() const {
        if (!m_gate->try_wait())
            m_gate->count_down();
    }

    const std::shared_ptr<std::latch> m_gate = std::make_shared<std::latch>(1);
    BusyWaiter m_waiter;
    MountCalls m_calls{m_waiter, {.few = 50ms, .many = kLong}};
};

TEST_F(MountCallsTest, AnswersWhatTheCallAnswersAndThrowsWhatItThrows) {
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
    EXPECT_ERROR(basic::kDiskFull,
                 m_calls.run<void>(kMount, kMany, [] { throw basic::RuntimeError(basic::kDiskFull); }));
}

TEST_F(MountCallsTest, MakesEachCallOnAThreadOfItsOwn) {
    const auto thread =
        m_calls.run<std::thread::id>(kMount, kMany, [] { return std::this_thread::get_id(); });
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(MountCallsTest, KeepsNothingOfACallThatReturned) {
    const auto held = std::make_shared<int>(0);
    m_calls.run<void>(kMount, kMany, [held] {});
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(MountCallsTest, LeavesACallBehindThatDoesNotReturnInTime) {
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<int>(kMount, kFew, hanging()));
}

TEST_F(MountCallsTest, GivesMoreTimeToWhatTakesManyRequests) {
    m_calls.run<int>(kMount, kFew, quick());
    EXPECT_EQ(m_waiter.longest, 50ms);
    m_calls.run<int>(kMount, kMany, quick());
    EXPECT_EQ(m_waiter.longest, kLong);
}

TEST_F(MountCallsTest, BeginsNoOtherCallThereUntilItReturns) {
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<int>(kMount, kFew, hanging()));
    bool isBegun = false;
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<void>(kMount, kMany, [&] { isBegun = true; }));
    EXPECT_FALSE(isBegun);
    EXPECT_EQ(m_calls.run<int>(kOtherMount, kMany, quick()), 2);
}

TEST_F(MountCallsTest, AnswersAgainOnceItReturned) {
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<int>(kMount, kFew, hanging()));
    goOn();
    m_waiter.awaitLast();
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
}

TEST_F(MountCallsTest, ACancelledWaitSaysNothingOfTheMount) {
    m_waiter.cancel();
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<int>(kMount, kMany, hanging()));
    std::latch begun(1);
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<void>(kMount, kMany, [&] { begun.count_down(); }));
    begun.wait();
}

TEST_F(MountCallsTest, ACallInsideOfAnotherOnesWaitIsNotBegun) {
    bool isBegun = false;
    m_waiter.meanwhile = [&] {
        EXPECT_ERROR(basic::kPathNotFound, m_calls.run<void>(kMount, kMany, [&] { isBegun = true; }));
    };
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
    EXPECT_FALSE(isBegun);
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
}

TEST_F(MountCallsTest, GivesUpWhatLiesOnTheMountBeforeItReturns) {
    auto resource = std::make_shared<int>(0);
    const std::weak_ptr<int> watched = resource;
    MountCalls calls(m_waiter);
    calls.letGo(kMount, std::move(resource));
    EXPECT_TRUE(watched.expired());
}

// Its giving up hangs as everything there does.
TEST_F(MountCallsTest, WaitsForNothingGivenUpOnAMountThatDoesNotAnswer) {
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<int>(kMount, kFew, hanging()));
    m_calls.letGo(kMount, std::shared_ptr<void>(nullptr, [gate = m_gate](void*) { gate->wait(); }));
    EXPECT_EQ(m_waiter.waits, 1);
}

TEST_F(MountCallsTest, ReachesAFolderThatIsThere) {
    const TemporaryFolder folder;
    MountCalls calls(m_waiter);
    calls.reach(folder.path());
    EXPECT_ERROR(basic::kPathNotFound, calls.reach(folder.path("missing")));
}

TEST_F(MountCallsTest, ReachesNoMountThatHangs) {
    EXPECT_ERROR(basic::kPathNotFound, m_calls.run<int>(kMount, kFew, hanging()));
    EXPECT_ERROR(basic::kPathNotFound, m_calls.reach(kMount));
}

} // namespace
} // namespace share::testing
