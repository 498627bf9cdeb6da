// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/WaveTest.h"

#include <QTest>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(WaveTest, EachTickTellsFractionAndPositionWithFourDecimals) {
    play();
    sound.position = 1.23456;
    sound.duration = 3;
    tick();
    EXPECT_THAT(progress, ElementsAre(std::pair<std::int64_t, std::int64_t>{4115, 12346}));
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition", "Duration", "WaitForCompletion 10"));
    wave->Pause();
    tick();
    EXPECT_EQ(progress.size(), 2U);
}

TEST_F(WaveTest, EndOfTheFileIsFoundByTheNextTickAndToldOnce) {
    play();
    tick();
    EXPECT_EQ(done, 0);
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::Complete;
    tick();
    EXPECT_EQ(done, 1);
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    tick();
    tick();
    EXPECT_EQ(done, 1);
    EXPECT_EQ(wave->Timer1().Interval(), 25);
}

TEST_F(WaveTest, EventCodeOfNothingIsNoEnd) {
    play();
    sound.isRunning = false;
    tick();
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(wave->IsPlaying());
}

TEST_F(WaveTest, DeviceThatWasRemovedEndsAsAQuietStop) {
    play();
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::UserAbort;
    tick();
    EXPECT_EQ(done, 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(WaveTest, SoundServerThatGoesIsToldOnceAndThePlayEnds) {
    play();
    sound.fail("CurrentPosition", basic::kMediaNoHardware);
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::ErrorAbort;
    tick();
    EXPECT_THAT(reported(), ElementsAre(testing::EndsWith("clsWave.Timer_ThatTime")));
    tick();
    EXPECT_EQ(done, 1);
    EXPECT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_TRUE(wave->PlayWave(kFile));
}

TEST_F(WaveTest, TickAfterTheEndDoesNothing) {
    play();
    wave->StopPlayRec();
    sound.takeLog();
    tick();
    EXPECT_THAT(sound.takeLog(), IsEmpty());
    EXPECT_THAT(progress, IsEmpty());
}

TEST_F(WaveTest, TickAfterAPlayThatFailedDoesNothing) {
    EXPECT_FALSE(wave->PlayWave(""));
    EXPECT_TRUE(wave->IsPlaying());
    sound.takeLog();
    tick();
    EXPECT_THAT(sound.takeLog(), IsEmpty());
    EXPECT_THAT(progress, IsEmpty());
}

TEST_F(WaveTest, TickOfAGraphThatNoPlayStartedTellsNothing) {
    play();
    wave->SetIsPlaying(false);
    tick();
    EXPECT_THAT(sound.takeLog(), ElementsAre("CurrentPosition"));
    EXPECT_THAT(progress, IsEmpty());
}

TEST_F(WaveTest, FileWithoutALengthIsAtItsBeginning) {
    play();
    sound.duration = 0;
    tick();
    EXPECT_THAT(progress, ElementsAre(std::pair<std::int64_t, std::int64_t>{0, 0}));
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(WaveTest, TimerKeepsItsIntervalAndWakesNobodyWhileNothingIsLoaded) {
    EXPECT_FALSE(wave->Timer1().isTicking());
    play();
    EXPECT_TRUE(wave->Timer1().isTicking());
    wave->Pause();
    EXPECT_TRUE(wave->Timer1().isTicking());
    wave->StopPlayRec();
    EXPECT_FALSE(wave->Timer1().isTicking());
    EXPECT_EQ(wave->Timer1().Interval(), 25);
    EXPECT_TRUE(wave->Timer1().Enabled());
    play();
    EXPECT_TRUE(wave->Timer1().isTicking());
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::Complete;
    tick();
    EXPECT_FALSE(wave->Timer1().isTicking());
}

TEST_F(WaveTest, TimerTicksByItselfWhilePlaying) {
    play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return progress.size() >= 2; }));
}

TEST_F(WaveTest, OwnerMayLetGoWhileATickRuns) {
    play();
    const std::weak_ptr<ReachableWave> kept = wave;
    bool livesOn = false;
    QObject::connect(wave.get(), &clsWave::Progress, [&] {
        wave.reset();
        livesOn = !kept.expired();
    });
    forms::Timer& timer = wave->Timer1();
    Q_EMIT timer.ThatTime();
    EXPECT_TRUE(livesOn);
    EXPECT_TRUE(kept.expired());
    EXPECT_EQ(wave, nullptr);
    EXPECT_THAT(sound.takeLog(), testing::Contains("graph gone"));
}

} // namespace
} // namespace audio
