// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Sound servers and devices that go away, and come back.

#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/SoundWorld.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <gtest/gtest.h>

namespace mediagraph::testing {
namespace {

void expectPlays(SoundWorld& world, const std::string& device = "Default Audio Device") {
    const auto graph = world.connected(world.makeMessage(0.2), device);
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    EXPECT_EQ(graph->CurrentPosition(), graph->Duration());
}

TEST(SoundServerFailure, BeforePlayingIsToldOnceAndTheNextPlayWorks) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(1));
    world.server.kill();
    graph->Run();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaNoHardware);
    graph->Stop();
    world.server.start();
    expectPlays(world);
}

TEST(SoundServerFailure, WhilePlayingIsToldOnceAndTheNextPlayWorks) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(5), 0.2);
    world.server.kill();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaNoHardware);
    EXPECT_GE(graph->CurrentPosition(), 0.2);
    world.server.start();
    expectPlays(world);
}

TEST(SoundServerFailure, WhilePausedIsToldWhenThePlayGoesOn) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(5), 0.1);
    graph->Pause();
    world.server.kill();
    EXPECT_GE(graph->CurrentPosition(), 0.1);
    graph->Run();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaNoHardware);
}

TEST(SoundServerFailure, LeavesNoDeviceInTheList) {
    SoundWorld world;
    EXPECT_EQ(world.sound().waveOut().waveOutGetNumDevs(), 3U);
    world.server.kill();
    EXPECT_EQ(world.sound().waveOut().waveOutGetNumDevs(), 0U);
    EXPECT_EQ(world.sound().graphs().newFilgraphManager()->RegFilterCollection()->Count(), 1);
}

TEST(SoundServerFailure, ByHangingLeavesNoDeviceInTheList) {
    SoundWorld world;
    world.server.freeze();
    EXPECT_EQ(world.sound().waveOut().waveOutGetNumDevs(), 0U);
    world.server.thaw();
    EXPECT_TRUE(waitUntil([&] { return world.sound().waveOut().waveOutGetNumDevs() == 3; }));
}

TEST(SoundServerFailure, ByHangingEndsThePlayInAnError) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(1));
    world.server.freeze();
    graph->Run();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaTimeout);
    world.server.thaw();
    expectPlays(world);
}

TEST(SoundServerFailure, ByHangingWhilePlayingEndsThePlayInAnError) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(30), 0.2);
    const double position = graph->CurrentPosition();
    world.server.freeze();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaTimeout);
    EXPECT_LT(graph->CurrentPosition(), position + 8); // the sound that lies ready, three seconds, and some
    world.server.thaw();
    expectPlays(world);
}

TEST(UnpluggingTheDevice, EndsPlayingAsAQuietStop) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(5), 0.2, "Second");
    world.server.unplug("second");
    EXPECT_EQ(endOf(*graph), EventCode::UserAbort);
    EXPECT_EQ(errorOf([&] { graph->CurrentPosition(); }), 0);
    EXPECT_TRUE(world.isDeviceFree());
    expectPlays(world, "First");
}

TEST(UnpluggingTheDevice, DoesNotMoveWhatPlaysAtTheDefaultToAnotherDevice) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(5), 0.2);
    world.server.unplug("first");
    EXPECT_EQ(endOf(*graph), EventCode::UserAbort);
    expectPlays(world);
}

TEST(UnpluggingTheDevice, EndsPlayingAlsoWhenItWasTheLastOne) {
    SoundWorld world;
    world.server.unplug("second");
    const auto graph = world.playing(world.makeMessage(5), 0.2);
    world.server.unplug("first");
    EXPECT_EQ(endOf(*graph), EventCode::UserAbort);
    // The silent stand-in that the server loads now is no device.
    EXPECT_EQ(world.sound().waveOut().waveOutGetNumDevs(), 0U);
}

// A server without a stand-in for the last device ends the stream itself: a failure by its looks.
TEST(UnpluggingTheDevice, EndsPlayingAlsoWhereTheServerHasNoStandIn) {
    SoundWorld world;
    world.server.control({"unload-module", "module-always-sink"});
    world.server.unplug("second");
    const auto graph = world.playing(world.makeMessage(5), 0.2);
    world.server.unplug("first");
    EXPECT_EQ(endOf(*graph), EventCode::UserAbort);
    EXPECT_EQ(errorOf([&] { graph->CurrentPosition(); }), 0);
}

TEST(UnpluggingTheDevice, WhilePausedLetsThePlayGoOnAtTheNewDefault) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(0.8), 0.2);
    graph->Pause();
    ASSERT_TRUE(world.isDeviceFree());
    world.server.unplug("first");
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

TEST(ChangingTheDefault, TakesWhatPlaysAlong) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(0.8), 0.2);
    world.server.control({"set-default-sink", "second"});
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

} // namespace
} // namespace mediagraph::testing
