// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What comes out of PipeWire where it has no PulseAudio face.
#include "tests/platform/mediagraph/PipeWireServer.h"
#include "tests/platform/mediagraph/SoundWorld.h"

#include <gtest/gtest.h>

namespace mediagraph::testing {
namespace {

struct PipeWireWorld : SoundWorld {
    explicit PipeWireWorld(PipeWireServer::Manager manager = PipeWireServer::Manager::Started)
        : SoundWorld(SoundServer::Begin::Off), pipeWire(manager) {}

    PipeWireServer pipeWire;
};

class PipeWireFormats : public ::testing::TestWithParam<SoundKind> {};

TEST_P(PipeWireFormats, AreHeardWholeAndAsTheyAre) {
    PipeWireWorld world;
    const auto file = world.makeMessage(0.7, GetParam());
    const auto message = world.decoded(file);
    const auto graph = world.connected(file);
    const auto recording = world.pipeWire.record("first");
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph->Stop();
    recording->finish();
    const auto stretches = recording->stretches();
    ASSERT_EQ(stretches.size(), 1U);
    EXPECT_NEAR(stretches[0].length(), message.seconds(), 0.03);
    EXPECT_GT(recording->likeness(stretches[0].begin, message, 0, message.seconds()), 0.99);
    EXPECT_EQ(graph->CurrentPosition(), graph->Duration());
}

INSTANTIATE_TEST_SUITE_P(PipeWire, PipeWireFormats,
                         ::testing::Values(SoundKind{"ALawAt8000", SF_FORMAT_ALAW, 8000, 1},
                                           SoundKind{"Pcm16At44100Stereo", SF_FORMAT_PCM_16, 8000, 1}),
                         [](const auto& tested) { return tested.param.name; });

TEST(PlayingAtPipeWire, IsSilentWhilePausedAndGoesOnAtTheSameSample) {
    PipeWireWorld world;
    const auto file = world.makeMessage(1.4);
    const auto message = world.decoded(file);
    const auto graph = world.connected(file);
    const auto recording = world.pipeWire.record("first");
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.6));
    graph->Pause();
    const auto pause = world.pipeWire.record("first");
    pause->finish(0.3);
    const double position = graph->CurrentPosition();
    EXPECT_TRUE(pause->stretches().empty());
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    recording->finish();
    const auto stretches = recording->stretches();
    ASSERT_EQ(stretches.size(), 2U);
    EXPECT_NEAR(stretches[0].length(), position, 0.2); // the server takes sound in cycles of 85 ms
    EXPECT_NEAR(recording->momentAt(stretches[1].begin, message, position), position, 0.03);
    EXPECT_NEAR(stretches[1].length(), message.seconds() - position, 0.03);
}

// The session manager is what joins a stream with a device: without it nobody takes the sound.
TEST(PlayingAtPipeWire, SaysThatTheSoundDidNotStartAndPlaysWhenItCan) {
    PipeWireWorld world(PipeWireServer::Manager::Off);
    const auto file = world.makeMessage(0.3);
    const auto graph = world.connected(file);
    graph->Run();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaTimeout);
    world.pipeWire.startManager();
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

// Not at another device, aloud; where it is the last one, not in silence.
TEST(PlayingAtPipeWire, EndsAsAQuietStopWhenItsDeviceIsUnplugged) {
    PipeWireWorld world;
    for (const char* sink : {"first", "second"}) {
        const auto graph = world.playing(world.makeMessage(5), 0.2);
        PipeWireServer::unplug(sink);
        EXPECT_EQ(endOf(*graph), EventCode::UserAbort);
        EXPECT_EQ(errorOf([&] { graph->CurrentPosition(); }), 0);
    }
}

TEST(PlayingAtPipeWire, IsToldOnceWhenItIsKilled) {
    PipeWireWorld world;
    const auto graph = world.playing(world.makeMessage(5), 0.2);
    world.pipeWire.kill();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaNoHardware);
    EXPECT_GE(graph->CurrentPosition(), 0.2);
    EXPECT_EQ(world.sound().waveOut().waveOutGetNumDevs(), 0U); // though its socket is still there
}

} // namespace
} // namespace mediagraph::testing
