// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the real graph plays in every state.

#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/SoundWorld.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace mediagraph::testing {
namespace {

using std::chrono::milliseconds;

TEST(AnEmptyGraph, IsAtZeroAndEndsNever) {
    SoundWorld world;
    const auto graph = world.sound().graphs().newFilgraphManager();
    EXPECT_EQ(errorOf([&] { graph->WaitForCompletion(milliseconds{0}); }), basic::kMediaWrongState);
    graph->SetCurrentPosition(3);
    graph->Run();
    EXPECT_EQ(graph->CurrentPosition(), 0);
    EXPECT_EQ(graph->Duration(), 0);
    EXPECT_EQ(errorOf([&] { graph->WaitForCompletion(milliseconds{1}); }), basic::kMediaStillRunning);
}

TEST(APlayingGraph, CompletesWhenItIsSentBeyondTheEnd) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(5), 0.1);
    graph->SetCurrentPosition(5.4);
    EXPECT_EQ(graph->CurrentPosition(), 5);
    EXPECT_EQ(endOf(*graph, std::chrono::seconds{4}), EventCode::Complete);
}

TEST(APlayingGraph, BeginsAnewWhenItIsSentBeforeTheBeginning) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(1), 0.4);
    graph->SetCurrentPosition(-0.5);
    EXPECT_LT(graph->CurrentPosition(), 0.1);
    EXPECT_EQ(errorOf([&] { graph->SetCurrentPosition(std::numeric_limits<double>::quiet_NaN()); }),
              basic::kInvalidProcedureCall);
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

TEST(APlayingGraph, PlaysOnFromTheBeginningAfterItsEnd) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(0.3));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph->SetCurrentPosition(0);
    EXPECT_EQ(errorOf([&] { graph->WaitForCompletion(milliseconds{0}); }), basic::kMediaStillRunning);
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph->Stop();
    EXPECT_EQ(errorOf([&] { graph->WaitForCompletion(milliseconds{0}); }), basic::kMediaWrongState);
}

// The device is kept for a moment after the end: what is run meanwhile is a play of its own.
TEST(APlayingGraph, EndsAgainWhenItIsRunAtItsEnd) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(0.3));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph->Stop();
    graph->Run();
    EXPECT_EQ(endOf(*graph, std::chrono::seconds{4}), EventCode::Complete);
    EXPECT_EQ(graph->CurrentPosition(), graph->Duration());
}

TEST(APlayingGraph, LetsTheDeviceGoWhenItIsStoppedAndGoesOnWhereItWas) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(1), 0.3);
    graph->Stop();
    EXPECT_TRUE(world.isDeviceFree());
    const double position = graph->CurrentPosition();
    EXPECT_GE(position, 0.3);
    graph->Run();
    EXPECT_GE(graph->CurrentPosition(), position);
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

TEST(APlayingGraph, IsHeardOnceThoughItIsRunAgain) {
    SoundWorld world;
    const auto graph = world.playing(world.makeMessage(30), 0.2);
    graph->Pause();
    ASSERT_TRUE(world.isDeviceFree());
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, graph->CurrentPosition() + 0.3));
    EXPECT_EQ(world.server.streamCount(), 1U);
}

TEST(APlayingGraph, LetsTheDeviceGoWhenItIsReleased) {
    SoundWorld world;
    auto graph = world.playing(world.makeMessage(5), 0.1);
    EXPECT_EQ(world.server.streamCount(), 1U);
    graph.reset();
    EXPECT_TRUE(world.isDeviceFree());
}

// Whatever came before, a graph that is asked to play from a place does so.
TEST(APlayingGraph, StandsAnyOrderOfCommands) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(1));
    std::mt19937 random(20260107);
    for (int i = 0; i < 400; ++i) {
        switch (random() % 5) {
        case 0:
            graph->Run();
            break;
        case 1:
            graph->Pause();
            break;
        case 2:
            graph->Stop();
            break;
        case 3:
            graph->SetCurrentPosition(static_cast<double>(random() % 12) / 10);
            break;
        default:
            errorOf([&] { graph->WaitForCompletion(milliseconds{random() % 20}); });
        }
        ASSERT_EQ(errorOf([&] { graph->CurrentPosition(); }), 0) << i;
    }
    graph->SetCurrentPosition(0.7);
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

TEST(APlayingGraph, IsReplacedAgainAndAgainWhileItPlays) {
    SoundWorld world;
    const auto file = world.makeMessage(1);
    Graph graph;
    for (int i = 0; i < 20; ++i) {
        graph = world.connected(file, i % 2 == 0 ? "First" : "Second");
        graph->Run();
        if (i % 3 == 0)
            comesTo(*graph, 0.02);
    }
    graph->SetCurrentPosition(0.8);
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph.reset();
    EXPECT_TRUE(world.isDeviceFree());
}

} // namespace
} // namespace mediagraph::testing
