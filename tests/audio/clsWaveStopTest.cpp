// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/WaveTest.h"

#include <QSignalSpy>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(WaveTest, StopReadsThePositionStopsTheGraphAndTellsTheEndOnce) {
    play();
    sound.position = 4;
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition", "CurrentPosition", "Stop"));
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    EXPECT_FALSE(wave->IsPlaying());
    EXPECT_FALSE(wave->HasFile());
    EXPECT_EQ(wave->CurrentFile(), kFile);
    EXPECT_EQ(wave->CurrentDuration(), 0);
    EXPECT_EQ(done, 1);
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_EQ(done, 1);
}

TEST_F(WaveTest, StopFromPausedEndsInStopped) {
    play();
    wave->Pause();
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    EXPECT_EQ(done, 1);
}

TEST_F(WaveTest, StopBeforeAnythingDoesNothing) {
    EXPECT_TRUE(wave->StopPlayRec());
    wave->Pause();
    EXPECT_THAT(sound.takeLog(), IsEmpty());
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    EXPECT_EQ(done, 0);
}

TEST_F(WaveTest, StopInsideOfThePlayDoneHandlerDoesNothingElse) {
    play();
    bool inner = false;
    QObject::connect(wave.get(), &clsWave::PlayDone, [&] { inner = wave->StopPlayRec(); });
    wave->StopPlayRec();
    EXPECT_TRUE(inner);
    EXPECT_EQ(done, 1);
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition", "Stop"));
}

TEST_F(WaveTest, StopOfOneEngineKeepsAnotherOneFromStopping) {
    const auto other = newWave();
    ASSERT_TRUE(other->PlayWave(kFile));
    play();
    QObject::connect(wave.get(), &clsWave::PlayDone, [&] { other->StopPlayRec(); });
    wave->StopPlayRec();
    EXPECT_TRUE(other->IsPlaying());
    other->StopPlayRec();
    EXPECT_FALSE(other->IsPlaying());
}

TEST_F(WaveTest, PlayDurationIsTheWholeSecondsBetweenStartAndStop) {
    play();
    clock.time.minute = 1;
    clock.time.second = 5;
    EXPECT_EQ(wave->LastPlayDuration(), 0);
    wave->StopPlayRec();
    EXPECT_EQ(wave->LastPlayDuration(), 65);
}

// Seconds as parts of a day are never exact.
TEST_F(WaveTest, EachPlayDurationOfAMinuteIsItsWholeSeconds) {
    for (int second = 0; second < 60; ++second) {
        clock.time.second = 0;
        play();
        clock.time.second = second;
        wave->StopPlayRec();
        EXPECT_EQ(wave->LastPlayDuration(), second);
    }
}

TEST_F(WaveTest, RecordingThatStopsIsToldWithItsSeconds) {
    QSignalSpy saved(wave.get(), &clsWave::FileSaved);
    QSignalSpy recorded(wave.get(), &clsWave::RecordDone);
    play();
    wave->SetIsPlaying(false);
    wave->SetIsRecording(true);
    sound.position = 3.6;
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_EQ(recorded.count(), 1);
    ASSERT_EQ(saved.count(), 1);
    EXPECT_EQ(saved.takeFirst().at(0).toInt(), 4);
    EXPECT_EQ(done, 0);
    EXPECT_EQ(wave->CurrentDuration(), 0);
}

TEST_F(WaveTest, UnInitStopsTheTimerAndLetsEverythingGo) {
    play();
    EXPECT_TRUE(wave->UnInit());
    EXPECT_EQ(wave->Timer1().Interval(), 0);
    EXPECT_EQ(done, 1);
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition", "Stop", "new graph", "RegFilterCollection",
                                             "graph gone", "graph gone"));
    EXPECT_FALSE(wave->HasFile());
    EXPECT_TRUE(wave->PlayWave(kFile));
}

TEST_F(WaveTest, EngineThatGoesWhilePlayingStopsItsGraph) {
    play();
    wave.reset();
    EXPECT_THAT(sound.takeLog(), testing::IsSupersetOf({"Stop", "graph gone"}));
    EXPECT_EQ(done, 1);
}

} // namespace
} // namespace audio
