// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/clsWave.h"

#include "tests/audio/AudioWorld.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class WaveTest : public AudioWorld {
protected:
    WaveTest() {
        QObject::connect(wave.get(), &clsWave::PlayDone, [this] { ++done; });
        QObject::connect(wave.get(), &clsWave::Progress,
                         [this](basic::Currency percent, basic::Currency duration) {
                             progress.push_back({percent.tenThousandths, duration.tenThousandths});
                         });
        sound.takeLog();
    }
    void play() {
        ASSERT_TRUE(wave->PlayWave(kFile));
        sound.takeLog();
    }
    void tick() const { Q_EMIT wave->Timer1().ThatTime(); }
    // The only call by which a position is set, after the calls of `command`.
    std::string moveOf(const std::function<void()>& command) {
        sound.takeLog();
        command();
        for (const std::string& call : sound.takeLog())
            if (call.starts_with("CurrentPosition ="))
                return call;
        return "";
    }

    std::shared_ptr<ReachableWave> wave = newWave();
    int done = 0;
    std::vector<std::pair<std::int64_t, std::int64_t>> progress;
};

TEST_F(WaveTest, IsMadeStoppedAndKnowsTheFirstDevice) {
    EXPECT_EQ(wave->DefaultAudioDevice, "Speaker");
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    EXPECT_FALSE(wave->IsPlaying());
    EXPECT_FALSE(wave->IsPaused());
    EXPECT_FALSE(wave->HasFile());
    EXPECT_EQ(wave->Timer1().Interval(), 0);
}

TEST_F(WaveTest, BuildsTheGraphByHandAndRunsIt) {
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_THAT(sound.takeLog(),
                ElementsAre("new graph", "RegFilterCollection", "RegName File Source (Async.)",
                            "Filter File Source (Async.)", "IsFileSource File Source (Async.)",
                            std::string("Filename ") + kFile, "RegName File Source (Async.)",
                            "RegName Speaker", "Filter Speaker", "Pins Speaker", "Direction Speaker",
                            "Filter Speaker", "IsFileSource Speaker", "FilterCollection",
                            "Name File Source (Async.)", "Pins File Source (Async.)", "Name Speaker",
                            "Name Speaker", "FilterCollection", "Name File Source (Async.)", "Name Speaker",
                            "Pins Speaker", "Direction Speaker", "Connect File Source (Async.) > Speaker",
                            "CurrentPosition = 0", "Run"));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
    EXPECT_TRUE(wave->IsPlaying());
    EXPECT_TRUE(wave->HasFile());
    EXPECT_EQ(wave->CurrentFile(), kFile);
    EXPECT_EQ(wave->Timer1().Interval(), 25);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(WaveTest, PausedFileGoesOnWithoutANewGraph) {
    play();
    wave->Pause();
    EXPECT_TRUE(wave->IsPaused());
    EXPECT_TRUE(wave->IsPlaying());
    EXPECT_TRUE(wave->PlayWave(R"(\\SRV01\quillamar_0$\mbx\12\c1.WAV)"));
    EXPECT_THAT(sound.takeLog(), ElementsAre("Pause", "Run"));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
    EXPECT_EQ(done, 0);
}

TEST_F(WaveTest, AnotherFileThanThePausedOneGetsAFreshGraph) {
    play();
    wave->Pause();
    EXPECT_TRUE(wave->PlayWave(R"(\\srv01\Quillamar_0$\MBX\12\C2.wav)"));
    EXPECT_THAT(sound.takeLog(), testing::Contains("new graph"));
    EXPECT_EQ(done, 1);
}

TEST_F(WaveTest, SameFileAfterAStopStartsFromTheBeginningWithAFreshGraph) {
    play();
    EXPECT_TRUE(wave->StopPlayRec());
    sound.takeLog();
    EXPECT_TRUE(wave->PlayWave(kFile));
    const auto log = sound.takeLog();
    EXPECT_THAT(log, testing::Contains("new graph"));
    EXPECT_EQ(log.back(), "Run");
    EXPECT_EQ(log[log.size() - 2], "CurrentPosition = 0");
}

TEST_F(WaveTest, SameFileWhilePlayingStartsAgainWithAFreshGraph) {
    play();
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_EQ(done, 1);
    EXPECT_TRUE(wave->IsPlaying());
    EXPECT_THAT(sound.takeLog(), testing::IsSupersetOf({"Stop", "graph gone", "new graph", "Run"}));
}

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

TEST_F(WaveTest, PositionThatCannotBeSetAtTheStartIsNoFailure) {
    sound.fail("CurrentPosition =");
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_EQ(sound.takeLog().back(), "Run");
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(WaveTest, InitMakesAGraphWithItsFiltersAndEvents) {
    EXPECT_TRUE(wave->Init());
    EXPECT_THAT(sound.takeLog(), ElementsAre("new graph", "RegFilterCollection"));
    wave->Pause();
    EXPECT_THAT(sound.takeLog(), ElementsAre("Pause"));
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

TEST_F(WaveTest, OwnerMayLetGoWhileATickRuns) {
    play();
    QObject::connect(wave.get(), &clsWave::Progress, [this] { wave.reset(); });
    forms::Timer& timer = wave->Timer1();
    Q_EMIT timer.ThatTime();
    EXPECT_EQ(wave, nullptr);
    EXPECT_THAT(sound.takeLog(), testing::Contains("graph gone"));
}

} // namespace
} // namespace audio
