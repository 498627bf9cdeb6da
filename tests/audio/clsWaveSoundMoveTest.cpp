// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's ways through a real message: where it lands by its own word, and by what is heard.
#include "tests/audio/WaveSoundTest.h"

#include <cmath>

namespace audio {
namespace {

using testing::IsEmpty;

class MovedWaveTest : public WaveSoundTest {
protected:
    // Plays a message up to `seconds` and pauses it there.
    void pauseAt(double seconds, double length) {
        makeWave();
        file = world.makeMessage(length);
        ASSERT_TRUE(play(file));
        ASSERT_TRUE(comesTo(0.05));
        wave->Pause();
        wave->SetPos(seconds / length);
        ASSERT_NEAR(place(), seconds, 0.001);
    }
    // The moment of the message that is heard first when the play goes on.
    double heardNext(double expected) {
        Recording recording("first", world.pathOf("heard"));
        EXPECT_TRUE(play(file));
        EXPECT_TRUE(comesTo(expected + 0.3));
        wave->Pause();
        EXPECT_TRUE(isDeviceFree());
        recording.finish(0.2);
        const auto stretches = recording.stretches(0.2);
        EXPECT_EQ(stretches.size(), 1U);
        return stretches.empty() ? -1 : recording.momentAt(stretches[0].begin, world.decoded(file), expected);
    }

    std::string file;
};

TEST_F(MovedWaveTest, ForwardIsATenthOfTheFile) {
    pauseAt(2, 5);
    wave->Forward();
    EXPECT_NEAR(place(), 2.5, 0.001);
    EXPECT_NEAR(heardNext(2.5), 2.5, 0.05);
}

TEST_F(MovedWaveTest, BackwardIsATenthOfTheFile) {
    pauseAt(2, 5);
    wave->Backward();
    EXPECT_NEAR(place(), 1.5, 0.001);
    EXPECT_NEAR(heardNext(1.5), 1.5, 0.05);
}

TEST_F(MovedWaveTest, SeekIsAFractionOfTheFile) {
    pauseAt(2, 4);
    wave->SetPos(0.25);
    EXPECT_NEAR(place(), 1, 0.001);
    EXPECT_NEAR(heardNext(1), 1, 0.05);
}

TEST_F(MovedWaveTest, BackwardGoesToTheBeginningWhenASecondOrLessIsLeft) {
    pauseAt(1.4, 5);
    wave->Backward();
    EXPECT_EQ(place(), 0);
    EXPECT_NEAR(heardNext(0), 0, 0.05);
}

TEST_F(MovedWaveTest, StepsAtTheBeginningDoNothing) {
    pauseAt(0, 5);
    wave->Forward();
    EXPECT_EQ(place(), 0);
    wave->Backward();
    EXPECT_EQ(place(), 0);
}

TEST_F(MovedWaveTest, SeeksWhilePlayingToWhatIsHeardNext) {
    pauseAt(0.2, 5);
    ASSERT_TRUE(play(file));
    ASSERT_TRUE(comesTo(0.4));
    Recording recording("first", world.pathOf("jump"));
    wave->SetPos(0.7);
    ASSERT_TRUE(comesTo(3.8));
    wave->Pause();
    ASSERT_TRUE(isDeviceFree());
    recording.finish(0.2);
    const auto stretches = recording.stretches(0.2);
    ASSERT_FALSE(stretches.empty());
    const double last = place() - 0.2;
    EXPECT_NEAR(recording.momentAt(stretches.back().end - 0.2, world.decoded(file), last), last, 0.05);
}

TEST_F(MovedWaveTest, ForwardPastTheEndEndsThePlay) {
    pauseAt(1.9, 2);
    ASSERT_TRUE(play(file));
    wave->Forward();
    EXPECT_TRUE(ends());
    EXPECT_EQ(done, 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(MovedWaveTest, SeekPastTheEndEndsThePlay) {
    pauseAt(0.5, 30);
    ASSERT_TRUE(play(file));
    wave->SetPos(1.5);
    EXPECT_TRUE(ends());
    EXPECT_EQ(places.back(), 30);
    EXPECT_EQ(done, 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(MovedWaveTest, SeekBeforeTheBeginningPlaysFromTheBeginning) {
    pauseAt(3, 5);
    wave->SetPos(-0.3);
    EXPECT_EQ(place(), 0);
    EXPECT_NEAR(heardNext(0), 0, 0.05);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(MovedWaveTest, RunningAPlayingGraphStartsItAgain) {
    pauseAt(20, 30);
    ASSERT_TRUE(play(file));
    wave->RunFilterGraph();
    EXPECT_LT(place(), 10);
    EXPECT_TRUE(comesTrue([this] { return places.back() > 0.1 && places.back() < 10; }));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
}

TEST_F(MovedWaveTest, RunningAPausedGraphGoesOn) {
    pauseAt(20, 30);
    wave->RunFilterGraph();
    EXPECT_TRUE(comesTo(20.2));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
}

} // namespace
} // namespace audio
