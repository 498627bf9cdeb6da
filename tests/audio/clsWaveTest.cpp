// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/WaveTest.h"

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

} // namespace
} // namespace audio
