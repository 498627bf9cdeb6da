// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/WaveTest.h"

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(WaveTest, ForwardIsATenthOfTheFile) {
    play();
    sound.position = 3;
    EXPECT_EQ(moveOf([this] { wave->Forward(); }), "CurrentPosition = 4");
}

TEST_F(WaveTest, ForwardAtTheBeginningDoesNothing) {
    play();
    sound.position = 0;
    EXPECT_EQ(moveOf([this] { wave->Forward(); }), "");
    EXPECT_EQ(moveOf([this] { wave->Backward(); }), "");
}

TEST_F(WaveTest, ForwardMayPassTheEndByLessThanASecond) {
    play();
    sound.duration = 20;
    sound.position = 18.9;
    EXPECT_EQ(moveOf([this] { wave->Forward(); }), "CurrentPosition = 20.9");
    sound.position = 19;
    EXPECT_EQ(moveOf([this] { wave->Forward(); }), "");
}

TEST_F(WaveTest, ForwardReadsFreshValuesForTheMove) {
    play();
    sound.positions = {3, 3, 3.5};
    sound.durations = {10, 20};
    EXPECT_EQ(moveOf([this] { wave->Forward(); }), "CurrentPosition = 5.5");
}

TEST_F(WaveTest, BackwardIsATenthOfTheFile) {
    play();
    sound.position = 5;
    EXPECT_EQ(moveOf([this] { wave->Backward(); }), "CurrentPosition = 4");
}

TEST_F(WaveTest, BackwardGoesToTheBeginningWhenASecondOrLessIsLeft) {
    play();
    sound.position = 2;
    EXPECT_EQ(moveOf([this] { wave->Backward(); }), "CurrentPosition = 0");
    sound.position = 2.01;
    EXPECT_EQ(moveOf([this] { wave->Backward(); }), "CurrentPosition = 1.01");
}

TEST_F(WaveTest, StepsBeforeTheFirstPlayDoNothing) {
    wave->Forward();
    wave->Backward();
    wave->SetPos(0.5);
    EXPECT_THAT(sound.takeLog(), IsEmpty());
}

TEST_F(WaveTest, SeekIsAFractionOfTheFileWithoutBounds) {
    play();
    EXPECT_EQ(moveOf([this] { wave->SetPos(0.25); }), "CurrentPosition = 2.5");
    EXPECT_EQ(moveOf([this] { wave->SetPos(1.5); }), "CurrentPosition = 15");
    wave->Pause();
    EXPECT_EQ(moveOf([this] { wave->SetPos(-0.1); }), "CurrentPosition = -1");
    wave->StopPlayRec();
    EXPECT_EQ(moveOf([this] { wave->SetPos(0.5); }), "");
}

TEST_F(WaveTest, RunningAPausedGraphGoesOn) {
    play();
    wave->Pause();
    sound.takeLog();
    wave->RunFilterGraph();
    EXPECT_THAT(sound.takeLog(), ElementsAre("Run"));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
}

TEST_F(WaveTest, RunningAPlayingGraphStartsItAgain) {
    play();
    sound.position = 4;
    wave->RunFilterGraph();
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition", "Duration", "CurrentPosition", "Duration",
                                             "CurrentPosition = 0", "Run"));
}

TEST_F(WaveTest, RunningAGraphAtItsEndStartsItAgain) {
    play();
    sound.position = 9.7;
    wave->RunFilterGraph();
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition", "Duration", "CurrentPosition = 0", "Run"));
}

TEST_F(WaveTest, RunningAGraphThatEndsBetweenTheTwoLooksIsLeftAlone) {
    play();
    sound.positions = {9.4, 9.6, 9.6};
    wave->RunFilterGraph();
    EXPECT_THAT(sound.takeLog(),
                ElementsAre("CurrentPosition", "Duration", "CurrentPosition", "Duration", "CurrentPosition"));
    sound.positions = {9.4, 0.1, 0.1};
    sound.durations = {10, 0.4};
    wave->RunFilterGraph();
    EXPECT_EQ(sound.takeLog().back(), "Run");
}

} // namespace
} // namespace audio
