// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the engine does to the recorded graph, done to the real one and heard at the sink.
#include "tests/audio/WaveSoundTest.h"
#include "tests/platform/mediagraph/StallWatch.h"

#include <algorithm>
#include <random>

namespace audio {
namespace {

using mediagraph::testing::StallWatch;
using testing::IsEmpty;

class PlayedWaveTest : public WaveSoundTest {
protected:
    PlayedWaveTest() { makeWave(); }

    // Until what plays, if anything does, has come further or to its end.
    void playOn() {
        if (!wave->IsPlaying() || wave->IsPaused())
            return;
        const double before = place();
        EXPECT_TRUE(comesTrue([&] { return !wave->IsPlaying() || place() != before; }));
    }
    void expectHeardWhole(const Recording& recording, const std::string& file) const {
        const auto message = world.decoded(file);
        const auto stretches = recording.stretches();
        ASSERT_EQ(stretches.size(), 1U);
        EXPECT_NEAR(stretches[0].length(), message.seconds(), 0.03);
        EXPECT_GT(recording.likeness(stretches[0].begin, message, 0, message.seconds()), 0.99);
    }
};

TEST_F(PlayedWaveTest, PlaysAFileToItsEndAndTellsItOnce) {
    const auto file = world.makeMessage(0.9);
    Recording recording("first", world.pathOf("heard"));
    ASSERT_TRUE(play(file));
    EXPECT_EQ(wave->PlayState(), clsWave::kPlaying);
    ASSERT_TRUE(ends());
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    EXPECT_FALSE(wave->HasFile());
    EXPECT_TRUE(std::ranges::is_sorted(places));
    EXPECT_NEAR(places.back(), 0.9, 0.05);
    EXPECT_FALSE(wave->Timer1().isTicking());
    recording.finish();
    expectHeardWhole(recording, file);
    EXPECT_EQ(done, 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(PlayedWaveTest, PausedFileGoesOnFromThePausedPlace) {
    const auto file = world.makeMessage(1.4);
    const auto message = world.decoded(file);
    const StallWatch machine;
    Recording recording("first", world.pathOf("heard"));
    ASSERT_TRUE(play(file));
    ASSERT_TRUE(comesTo(0.5));
    wave->Pause();
    ASSERT_TRUE(isDeviceFree()); // silent from here on
    const double paused = place();
    Recording pause("first", world.pathOf("pause"));
    pause.finish(0.5);
    EXPECT_TRUE(pause.stretches().empty());
    EXPECT_EQ(place(), paused);
    EXPECT_TRUE(wave->IsPlaying());
    EXPECT_TRUE(wave->PlayWave(R"(\\SRV\quillamar_0$\PCM16.wav)"));
    ASSERT_TRUE(ends());
    recording.finish();
    const auto stretches = recording.stretches(0.2);
    ASSERT_EQ(stretches.size(), 2U);
    const double exact = 0.03 + machine.longest();
    EXPECT_NEAR(stretches[0].length(), paused, exact);
    EXPECT_NEAR(recording.momentAt(stretches[1].begin, message, paused), stretches[0].length(), exact);
    EXPECT_NEAR(stretches[0].length() + stretches[1].length(), message.seconds(), exact);
    EXPECT_EQ(done, 1);
}

TEST_F(PlayedWaveTest, SameFileAfterAStopStartsFromTheBeginning) {
    const auto file = world.makeMessage(0.8);
    ASSERT_TRUE(play(file));
    ASSERT_TRUE(comesTo(0.4));
    ASSERT_TRUE(wave->StopPlayRec());
    EXPECT_EQ(done, 1);
    ASSERT_TRUE(isDeviceFree());
    Recording recording("first", world.pathOf("heard"));
    ASSERT_TRUE(play(file));
    ASSERT_TRUE(ends());
    recording.finish();
    expectHeardWhole(recording, file);
    EXPECT_EQ(done, 2);
}

TEST_F(PlayedWaveTest, AnotherFileThanThePausedOneIsPlayedFromItsBeginning) {
    const auto other = world.makeMessage(0.5, {"other", SF_FORMAT_ALAW, 8000, 1});
    ASSERT_TRUE(play(world.makeMessage(5)));
    ASSERT_TRUE(comesTo(0.2));
    wave->Pause();
    ASSERT_TRUE(isDeviceFree());
    Recording recording("first", world.pathOf("heard"));
    ASSERT_TRUE(play(other));
    EXPECT_EQ(done, 1);
    ASSERT_TRUE(ends());
    recording.finish();
    expectHeardWhole(recording, other);
    EXPECT_EQ(done, 2);
}

TEST_F(PlayedWaveTest, StopLetsTheDeviceGo) {
    ASSERT_TRUE(play(world.makeMessage(20)));
    ASSERT_TRUE(comesTo(0.1));
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_TRUE(isDeviceFree());
    EXPECT_EQ(wave->CurrentDuration(), 0);
    EXPECT_TRUE(wave->StopPlayRec());
    EXPECT_EQ(done, 1);
}

TEST_F(PlayedWaveTest, StopInsideOfThePlayDoneHandlerDoesNothingElse) {
    QObject::connect(wave.get(), &clsWave::PlayDone, [this] { EXPECT_TRUE(wave->StopPlayRec()); });
    ASSERT_TRUE(play(world.makeMessage(0.2)));
    ASSERT_TRUE(ends());
    EXPECT_EQ(done, 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(PlayedWaveTest, EngineThatGoesWhilePlayingLetsTheDeviceGo) {
    ASSERT_TRUE(play(world.makeMessage(20)));
    ASSERT_TRUE(comesTo(0.1));
    wave.reset();
    EXPECT_EQ(done, 1);
    EXPECT_TRUE(isDeviceFree());
}

TEST_F(PlayedWaveTest, UnInitLetsTheDeviceGoAndAnotherPlayWorks) {
    ASSERT_TRUE(play(world.makeMessage(20)));
    ASSERT_TRUE(comesTo(0.1));
    EXPECT_TRUE(wave->UnInit());
    EXPECT_EQ(wave->Timer1().Interval(), 0);
    EXPECT_TRUE(isDeviceFree());
    ASSERT_TRUE(play(world.makeMessage(0.2, {"short"})));
    EXPECT_TRUE(ends());
}

TEST_F(PlayedWaveTest, StandsAnyOrderOfCommands) {
    const std::vector files{world.makeMessage(1), world.makeMessage(0.3, {"other", SF_FORMAT_GSM610})};
    const std::vector<std::function<void()>> commands{[&] { EXPECT_TRUE(play(files[0])); },
                                                      [&] { EXPECT_TRUE(play(files[1])); },
                                                      [this] { wave->Pause(); },
                                                      [this] { wave->StopPlayRec(); },
                                                      [this] { wave->Forward(); },
                                                      [this] { wave->Backward(); },
                                                      [this] { wave->SetPos(0.8); },
                                                      [this] { wave->RunFilterGraph(); },
                                                      [this] { playOn(); },
                                                      [this] { place(); }};
    ASSERT_TRUE(wave->Init());
    std::mt19937 random(20260411);
    for (int i = 0; i < 150; ++i)
        commands[random() % commands.size()]();
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    ASSERT_TRUE(play(files[1]));
    EXPECT_TRUE(ends());
    EXPECT_TRUE(isDeviceFree());
}

} // namespace
} // namespace audio
