// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What comes out of the sound server, heard at the monitor of its sink.

#include "tests/platform/mediagraph/Recording.h"
#include "tests/platform/mediagraph/SoundWorld.h"
#include "tests/platform/mediagraph/StallWatch.h"

#include <gtest/gtest.h>

namespace mediagraph::testing {
namespace {

// The whole message, from its first sample to its last, is heard once and as it is.
void expectHeardWhole(const Recording& recording, const Samples& message) {
    const auto stretches = recording.stretches();
    ASSERT_EQ(stretches.size(), 1U);
    EXPECT_NEAR(stretches[0].length(), message.seconds(), 0.03);
    EXPECT_GT(recording.likeness(stretches[0].begin, message, 0, message.seconds()), 0.99);
    const double lastTenth = message.seconds() - 0.1;
    EXPECT_GT(recording.likeness(stretches[0].begin + lastTenth, message, lastTenth, 0.095), 0.9);
}

class Formats : public ::testing::TestWithParam<SoundKind> {};

TEST_P(Formats, AreHeardWholeAndAsTheyAre) {
    SoundWorld world;
    const auto file = world.makeMessage(0.7, GetParam());
    const auto graph = world.connected(file);
    Recording recording("first", world.pathOf("heard"));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph->Stop();
    recording.finish();
    expectHeardWhole(recording, world.decoded(file));
    EXPECT_NEAR(graph->Duration(), 0.7, 0.02);
    EXPECT_EQ(graph->CurrentPosition(), graph->Duration());
}

INSTANTIATE_TEST_SUITE_P(Sound, Formats,
                         ::testing::Values(SoundKind{"Pcm8At8000", SF_FORMAT_PCM_U8, 8000, 1},
                                           SoundKind{"Pcm16At48000Stereo", SF_FORMAT_PCM_16, 48000, 2},
                                           SoundKind{"ALawAt8000", SF_FORMAT_ALAW, 8000, 1},
                                           SoundKind{"MuLawAt16000Stereo", SF_FORMAT_ULAW, 16000, 2},
                                           SoundKind{"Gsm610At8000", SF_FORMAT_GSM610, 8000, 1},
                                           SoundKind{"MsAdpcmAt22050Stereo", SF_FORMAT_MS_ADPCM, 22050, 2},
                                           SoundKind{"ImaAdpcmAt11025", SF_FORMAT_IMA_ADPCM, 11025, 1}),
                         [](const auto& tested) { return tested.param.name; });

TEST(PlayingSound, HearsAShortMessageToItsEndThoughTheGraphIsStoppedAtOnce) {
    SoundWorld world;
    const auto file = world.makeMessage(0.45);
    auto graph = world.connected(file);
    Recording recording("first", world.pathOf("heard"));
    graph->Run();
    while (endOf(*graph) != EventCode::Complete)
        graph->CurrentPosition();
    graph->Stop();
    graph.reset();
    recording.finish();
    expectHeardWhole(recording, world.decoded(file));
}

TEST(PlayingSound, HasNoHoleWhenTheServerStandsStillForASecond) {
    SoundWorld world;
    const auto file = world.makeMessage(2.5);
    const auto graph = world.connected(file);
    Recording recording("first", world.pathOf("heard"));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.3));
    world.server.standStill(std::chrono::seconds{1});
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    recording.finish();
    expectHeardWhole(recording, world.decoded(file));
}

TEST(PlayingSound, IsSilentWhilePausedAndGoesOnAtTheSameSample) {
    SoundWorld world;
    const auto file = world.makeMessage(1.4);
    const auto message = world.decoded(file);
    const auto graph = world.connected(file);
    const StallWatch machine;
    Recording recording("first", world.pathOf("heard"));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.6));
    graph->Pause();
    Recording pause("first", world.pathOf("pause"));
    pause.finish(0.5);
    const double position = graph->CurrentPosition();
    EXPECT_TRUE(pause.stretches().empty());
    EXPECT_EQ(errorOf([&] { graph->WaitForCompletion(std::chrono::milliseconds{1}); }),
              basic::kMediaWrongState);
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    recording.finish();
    const auto stretches = recording.stretches(0.2);
    ASSERT_EQ(stretches.size(), 2U);
    const double exact = 0.03 + machine.longest();
    EXPECT_NEAR(stretches[0].length(), position, exact);
    EXPECT_NEAR(stretches[0].length() + stretches[1].length(), message.seconds(), exact);
    EXPECT_NEAR(recording.momentAt(stretches[1].begin, message, position), stretches[0].length(), exact);
}

class Places : public ::testing::TestWithParam<SoundKind> {};

TEST_P(Places, AreWhereTheSoundGoesOn) {
    SoundWorld world;
    const auto file = world.makeMessage(3, GetParam());
    const auto message = world.decoded(file);
    const auto graph = world.connected(file);
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.3));
    graph->Pause();
    for (const double place : {2.1, 0.7}) {
        graph->SetCurrentPosition(place);
        EXPECT_EQ(graph->CurrentPosition(), place);
        Recording recording("first", world.pathOf("heard"));
        graph->Run();
        ASSERT_TRUE(comesTo(*graph, place + 0.3));
        graph->Pause();
        recording.finish(0.2);
        const auto stretches = recording.stretches(0.2);
        ASSERT_EQ(stretches.size(), 1U);
        EXPECT_NEAR(recording.momentAt(stretches[0].begin, message, place), place, 0.05);
    }
}

INSTANTIATE_TEST_SUITE_P(Sound, Places,
                         ::testing::Values(SoundKind{"Pcm16At8000", SF_FORMAT_PCM_16, 8000, 1},
                                           SoundKind{"Gsm610At8000", SF_FORMAT_GSM610, 8000, 1},
                                           SoundKind{"MsAdpcmAt22050Stereo", SF_FORMAT_MS_ADPCM, 22050, 2},
                                           SoundKind{"ImaAdpcmAt11025", SF_FORMAT_IMA_ADPCM, 11025, 1}),
                         [](const auto& tested) { return tested.param.name; });

TEST(PlayingSound, BeginsWhereAStoppedMessageWasSent) {
    SoundWorld world;
    const auto file = world.makeMessage(1.2);
    const auto message = world.decoded(file);
    const auto graph = world.connected(file);
    graph->SetCurrentPosition(0.8);
    Recording recording("first", world.pathOf("heard"));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    recording.finish();
    const auto stretches = recording.stretches();
    ASSERT_EQ(stretches.size(), 1U);
    EXPECT_NEAR(stretches[0].length(), 0.4, 0.05);
    EXPECT_NEAR(recording.momentAt(stretches[0].begin, message, 0.8), 0.8, 0.05);
}

TEST(PlayingSound, PlaysAtTheDeviceThatWasChosen) {
    SoundWorld world;
    const auto file = world.makeMessage(0.3);
    const auto graph = world.connected(file, "Second");
    Recording first("first", world.pathOf("first"));
    Recording second("second", world.pathOf("second"));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    first.finish();
    second.finish();
    EXPECT_TRUE(first.stretches().empty());
    expectHeardWhole(second, world.decoded(file));
}

TEST(PlayingSound, FollowsTheDesktopsDefault) {
    SoundWorld world;
    const auto file = world.makeMessage(0.3);
    const auto graph = world.connected(file);
    world.server.control({"set-default-sink", "second"});
    Recording second("second", world.pathOf("second"));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    second.finish();
    expectHeardWhole(second, world.decoded(file));
}

} // namespace
} // namespace mediagraph::testing
