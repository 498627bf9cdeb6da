// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Playback.h"

#include "tests/platform/mediagraph/ErrorOf.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mediagraph::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

// The desk, a clock that stands still until it is told, and the playing thread's side of things.
class PlaybackDesk : public ::testing::Test {
protected:
    Playback::Clock::time_point now = Playback::Clock::now();
    Playback desk{10, [this] { return now; }};

    PlayOrder order() { return desk.next(0, milliseconds{0}); }
    PlayOrder playing() {
        desk.want(PlayState::Playing);
        return order();
    }
    // For so long the engine looks at the position forty times a second.
    void lookOn(milliseconds time) {
        for (const auto end = now + time; now < end;) {
            now += milliseconds{25};
            desk.position();
        }
    }
    std::int32_t lookError(milliseconds time) {
        return errorOf([&] { lookOn(time); });
    }
    std::string lookErrorText(milliseconds time) {
        return errorTextOf([&] { lookOn(time); });
    }
    std::int32_t waitError() {
        return errorOf([&] { desk.waitForCompletion(milliseconds{0}); });
    }
};

TEST_F(PlaybackDesk, AnswersTheLastKnownPosition) {
    const auto newest = playing();
    EXPECT_EQ(desk.position(), 0);
    desk.moved(newest, 2.5);
    EXPECT_EQ(desk.position(), 2.5);
}

TEST_F(PlaybackDesk, AnswersANewPositionAtOnceAndDropsOldOnes) {
    const auto before = playing();
    desk.seek(7);
    EXPECT_EQ(desk.position(), 7);
    desk.moved(before, 2.5);
    desk.ended(before, EventCode::Complete);
    EXPECT_EQ(desk.position(), 7);
    EXPECT_EQ(waitError(), basic::kMediaStillRunning);
}

TEST_F(PlaybackDesk, KeepsPositionsWithinTheMessage) {
    desk.seek(-3);
    EXPECT_EQ(desk.position(), 0);
    desk.seek(11);
    EXPECT_EQ(desk.position(), 10);
    desk.seek(std::numeric_limits<double>::infinity());
    EXPECT_EQ(desk.position(), 10);
    const auto newest = playing();
    desk.moved(newest, 10.02);
    EXPECT_EQ(desk.position(), 10);
}

TEST_F(PlaybackDesk, IsAtTheEndWhenTheEndWasHeard) {
    const auto newest = playing();
    desk.moved(newest, 9.9);
    desk.ended(newest, EventCode::Complete);
    EXPECT_EQ(desk.position(), 10);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::Complete);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::Complete);
    desk.want(PlayState::Playing);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::Complete);
}

TEST_F(PlaybackDesk, DropsWhatIsToldOfAnOrderThatHasEnded) {
    const auto newest = playing();
    desk.ended(newest, EventCode::Complete);
    desk.moved(newest, 3);
    desk.ended(newest, EventCode::UserAbort);
    desk.failed(newest, basic::RuntimeError(basic::kMediaNoHardware));
    EXPECT_EQ(desk.position(), 10);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::Complete);
}

TEST_F(PlaybackDesk, DropsTheFailureOfAnOrderThatIsNotTheNewest) {
    const auto before = playing();
    desk.seek(7);
    desk.failed(before, basic::RuntimeError(basic::kMediaNoHardware));
    EXPECT_EQ(errorOf([&] { desk.position(); }), 0);
    EXPECT_EQ(order().state, PlayState::Playing);
}

TEST_F(PlaybackDesk, NumbersEachPlaceItIsSentTo) {
    const auto before = playing();
    desk.want(PlayState::Paused);
    EXPECT_EQ(order().seekNumber, before.seekNumber);
    desk.seek(before.position);
    EXPECT_EQ(order().seekNumber, before.seekNumber + 1);
    EXPECT_GT(order().number, before.number);
}

TEST_F(PlaybackDesk, SaysThatASoundDidNotStart) {
    desk.want(PlayState::Playing);
    EXPECT_EQ(lookErrorText(seconds{6}), "The sound did not start within five seconds.");
}

TEST_F(PlaybackDesk, SaysThatASoundDidNotStartAgain) {
    desk.moved(playing(), 1);
    desk.want(PlayState::Paused);
    desk.want(PlayState::Playing);
    EXPECT_EQ(lookErrorText(seconds{6}), "The sound did not start within five seconds.");
}

TEST_F(PlaybackDesk, ForgetsTheEndWhenItIsStoppedOrSentElsewhere) {
    desk.ended(playing(), EventCode::Complete);
    desk.seek(0);
    EXPECT_EQ(waitError(), basic::kMediaStillRunning);
    desk.ended(order(), EventCode::Complete);
    desk.want(PlayState::Stopped);
    EXPECT_EQ(waitError(), basic::kMediaWrongState);
    EXPECT_EQ(desk.position(), 10);
}

TEST_F(PlaybackDesk, RefusesToWaitForWhatDoesNotRun) {
    EXPECT_EQ(waitError(), basic::kMediaWrongState);
    playing();
    desk.want(PlayState::Paused);
    EXPECT_EQ(waitError(), basic::kMediaWrongState);
}

TEST_F(PlaybackDesk, TellsAFailureOnceAndThenHowItEnded) {
    const auto newest = playing();
    desk.moved(newest, 3);
    desk.failed(newest, basic::RuntimeError(basic::kMediaNoHardware, "gone"));
    EXPECT_EQ(waitError(), basic::kMediaStillRunning); // not before it was told why
    EXPECT_EQ(errorOf([&] { desk.position(); }), basic::kMediaNoHardware);
    EXPECT_EQ(desk.position(), 3);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::ErrorAbort);
    EXPECT_EQ(order().state, PlayState::Stopped);
}

TEST_F(PlaybackDesk, HearsOnlyTheFirstOfManyFailures) {
    const auto newest = playing();
    desk.failed(newest, basic::RuntimeError(basic::kMediaNoHardware, "first"));
    desk.failed(newest, basic::RuntimeError(basic::kMediaTimeout, "second"));
    EXPECT_EQ(errorOf([&] { desk.position(); }), basic::kMediaNoHardware);
    EXPECT_EQ(errorOf([&] { desk.position(); }), 0);
}

TEST_F(PlaybackDesk, StopsQuietlyWhenTheDeviceGoes) {
    const auto newest = playing();
    desk.moved(newest, 4);
    desk.ended(newest, EventCode::UserAbort);
    EXPECT_EQ(desk.position(), 4);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::UserAbort);
    EXPECT_EQ(order().state, PlayState::Stopped);
}

TEST_F(PlaybackDesk, FailsWhenTheSoundDoesNotStartWithinFiveSeconds) {
    desk.want(PlayState::Playing);
    EXPECT_EQ(lookError(seconds{5}), 0);
    EXPECT_EQ(lookError(milliseconds{1}), basic::kMediaTimeout);
    EXPECT_EQ(errorOf([&] { desk.position(); }), 0);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::ErrorAbort);
}

TEST_F(PlaybackDesk, NeverFailsForTimeWhileThePlayingThreadTellsPositions) {
    const auto newest = playing();
    for (int second = 0; second < 60; ++second) {
        desk.moved(newest, second);
        EXPECT_EQ(lookError(seconds{4}), 0);
    }
}

TEST_F(PlaybackDesk, FailsWhenThePlayingThreadFallsSilent) {
    desk.moved(playing(), 1);
    EXPECT_EQ(lookError(seconds{5}), 0);
    EXPECT_EQ(lookErrorText(milliseconds{1}), "The sound server stopped playing.");
}

// A machine that slept, or a program that was stopped: the playing thread stood still as well.
TEST_F(PlaybackDesk, DoesNotCountTimeInWhichNobodyLooked) {
    desk.moved(playing(), 1);
    now += std::chrono::hours{1};
    EXPECT_EQ(lookError(seconds{4}), 0);
    EXPECT_EQ(lookError(seconds{1}), basic::kMediaTimeout);
}

TEST_F(PlaybackDesk, WaitsForEverWhilePausedOrAtTheEnd) {
    playing();
    desk.want(PlayState::Paused);
    EXPECT_EQ(lookError(std::chrono::hours{1}), 0);
    desk.ended(playing(), EventCode::Complete);
    EXPECT_EQ(lookError(std::chrono::hours{1}), 0);
}

TEST_F(PlaybackDesk, DropsWhatALateThreadTellsAfterAFailure) {
    desk.want(PlayState::Playing);
    const auto late = order();
    EXPECT_EQ(lookError(seconds{6}), basic::kMediaTimeout);
    desk.moved(late, 1);
    desk.ended(late, EventCode::Complete);
    EXPECT_EQ(desk.position(), 0);
    EXPECT_EQ(desk.waitForCompletion(milliseconds{0}), EventCode::ErrorAbort);
}

TEST_F(PlaybackDesk, CanBeRunAgainAfterAFailureFromWhereItWas) {
    const auto newest = playing();
    desk.moved(newest, 3);
    desk.failed(newest, basic::RuntimeError(basic::kMediaNoHardware));
    desk.want(PlayState::Playing);
    EXPECT_EQ(errorOf([&] { desk.position(); }), 0);
    EXPECT_EQ(order().state, PlayState::Playing);
    EXPECT_EQ(order().position, 3);
}

TEST_F(PlaybackDesk, OrdersToLeaveWhateverWasWanted) {
    playing();
    desk.leave();
    EXPECT_TRUE(order().isLeaving);
    EXPECT_EQ(order().state, PlayState::Stopped);
}

} // namespace
} // namespace mediagraph::testing
