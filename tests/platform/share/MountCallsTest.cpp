// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountCalls.h"

#include "tests/platform/share/DirectedWaiter.h"
#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>
#include <latch>
#include <memory>
#include <string>
#include <thread>

namespace share::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

const SlowMount kMount{"41", "/mnt/q"};
const SlowMount kOtherMount{"42", "/mnt/q"}; // at the same place later
constexpr auto kFew = MountCalls::Requests::Few;
constexpr auto kMany = MountCalls::Requests::Many;

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
    void leaveACallBehind() {
        m_waiter.patience = 0;
        EXPECT_THROW(m_calls.run<int>(kMount, kFew, hanging()), CallLeftBehind);
        m_waiter.patience = 100;
    }
    void expectNotBegun(const SlowMount& mount) {
        try {
            m_calls.run<void>(mount, kMany, [] {});
            FAIL() << "it was carried out";
        } catch (const CallLeftBehind&) {
            FAIL() << "it was begun";
        } catch (const basic::RuntimeError& error) {
            EXPECT_EQ(error.number(), basic::kPathNotFound);
        }
    }
    void goOn() const {
        if (!m_gate->try_wait())
            m_gate->count_down();
    }
    // Tells when it is given up.
    static std::shared_ptr<void> resource(std::function<void()> givenUp) {
        return {new int, [givenUp = std::move(givenUp)](const int* owned) {
                    delete owned;
                    givenUp();
                }};
    }

    const std::shared_ptr<std::latch> m_gate = std::make_shared<std::latch>(1);
    DirectedWaiter m_waiter;
    MountCalls m_calls{m_waiter};
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

TEST_F(MountCallsTest, GivesMoreTimeToWhatTakesManyRequests) {
    m_calls.run<int>(kMount, kFew, quick());
    m_calls.run<int>(kMount, kMany, quick());
    EXPECT_THAT(m_waiter.waits, ElementsAre(3s, 30s));
}

TEST_F(MountCallsTest, BeginsNoCallBesideOneThatWasLeftBehind) {
    leaveACallBehind();
    expectNotBegun(kMount);
    EXPECT_EQ(m_calls.run<int>(kOtherMount, kMany, quick()), 2);
}

TEST_F(MountCallsTest, AnswersAgainOnceItReturned) {
    leaveACallBehind();
    goOn();
    EXPECT_EQ(m_waiter.awaitLast(), Waited::Ready);
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
}

TEST_F(MountCallsTest, ACallWhoseWaitIsCancelledIsLeftBehindAsWell) {
    m_waiter.meanwhile = [this] { m_waiter.isCancelled = true; };
    EXPECT_THROW(m_calls.run<int>(kMount, kMany, hanging()), CallLeftBehind);
    m_waiter.isCancelled = false;
    expectNotBegun(kMount);
}

TEST_F(MountCallsTest, BeginsNothingThatItMayNotWaitFor) {
    m_waiter.isCancelled = true;
    expectNotBegun(kMount);
}

TEST_F(MountCallsTest, BeginsNothingInsideOfAnotherCallsWait) {
    m_waiter.meanwhile = [this] { expectNotBegun(kMount); };
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
    EXPECT_EQ(m_waiter.meanwhile, nullptr);
    EXPECT_EQ(m_calls.run<int>(kMount, kMany, quick()), 2);
}

TEST_F(MountCallsTest, GivesUpWhatLiesOnTheMountBeforeItReturns) {
    std::thread::id thread;
    m_calls.letGo(kMount, resource([&] { thread = std::this_thread::get_id(); }));
    EXPECT_NE(thread, std::thread::id());
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(MountCallsTest, GivingUpMayHangAsWell) {
    m_waiter.patience = 0;
    m_calls.letGo(kMount, resource([gate = m_gate] { gate->wait(); }));
    m_waiter.patience = 100;
    expectNotBegun(kMount);
}

TEST_F(MountCallsTest, WhatIsGivenUpInsideOfACallsWaitFollowsTheCall) {
    const auto order = std::make_shared<std::string>();
    m_waiter.meanwhile = [&] {
        m_calls.letGo(kMount, resource([order] { *order += " resource"; }));
        goOn();
    };
    m_calls.run<void>(kMount, kMany, [order, gate = m_gate] {
        gate->wait();
        *order += "call";
    });
    EXPECT_EQ(*order, "call resource");
}

// A lock outlives the write that it protects.
TEST_F(MountCallsTest, GivesUpInOrderAndOnlyAfterTheCallThatWasLeftBehind) {
    leaveACallBehind();
    const auto order = std::make_shared<std::string>();
    m_calls.letGo(kMount, resource([order] { *order += "database "; }));
    m_calls.letGo(kMount, resource([order] { *order += "lock"; }));
    EXPECT_EQ(m_waiter.waits.size(), 1U);
    EXPECT_EQ(*order, "");
    goOn();
    EXPECT_EQ(m_waiter.awaitLast(), Waited::Ready);
    EXPECT_EQ(*order, "database lock");
}

TEST_F(MountCallsTest, GivesUpInOrderAlsoWhenItMayNotWait) {
    m_waiter.isCancelled = true;
    const auto order = std::make_shared<std::string>();
    const auto lockIsFree = std::make_shared<std::latch>(1);
    m_calls.letGo(kMount, resource([order, gate = m_gate] {
                      gate->wait();
                      *order += "database ";
                  }));
    m_calls.letGo(kMount, resource([order, lockIsFree] {
                      *order += "lock";
                      lockIsFree->count_down();
                  }));
    goOn();
    lockIsFree->wait();
    EXPECT_EQ(*order, "database lock");
}

TEST_F(MountCallsTest, ReachesWhateverAnswers) {
    const TemporaryFolder folder;
    m_calls.reach({"41", folder.path()});
    m_calls.reach({"41", folder.path("missing")}); // the next call tells better what is wrong
    EXPECT_THAT(m_waiter.waits, ElementsAre(3s, 3s));
}

TEST_F(MountCallsTest, ReachesNoMountThatHangs) {
    leaveACallBehind();
    EXPECT_ERROR(basic::kPathNotFound, m_calls.reach(kMount));
}

} // namespace
} // namespace share::testing
