// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the real graph answers while it is built, and what it plays in every state.

#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/SoundWorld.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <gst/gst.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <random>

namespace mediagraph::testing {
namespace {

using std::chrono::milliseconds;

std::vector<std::string> openFiles() {
    std::vector<std::string> names;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
        names.push_back(std::filesystem::read_symlink(entry.path(), ignored).string());
    return names;
}

std::ptrdiff_t threadCount() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST(BuildingAGraph, OffersTheFileSourceAndARendererForEachDevice) {
    SoundWorld world;
    const auto graph = world.sound().graphs().newFilgraphManager();
    std::vector<std::string> names;
    const auto filters = graph->RegFilterCollection();
    for (const auto& filter : *filters)
        names.push_back(filter->Name());
    EXPECT_EQ(names,
              (std::vector<std::string>{"File Source (Async.)", "Default Audio Device", "First", "Second"}));
    EXPECT_EQ(graph->FilterCollection()->Count(), 0);
}

TEST(BuildingAGraph, NamesRenderersAsTheDeviceListDoes) {
    SoundWorld world;
    const auto filters = world.sound().graphs().newFilgraphManager()->RegFilterCollection();
    auto& waveOut = world.sound().waveOut();
    ASSERT_EQ(waveOut.waveOutGetNumDevs() + 1, static_cast<std::uint32_t>(filters->Count()));
    for (std::uint32_t device = 0; device < 3; ++device) {
        WaveOutCaps record;
        ASSERT_EQ(waveOut.waveOutGetDevCapsA(device, record, kWaveOutCapsSize), kWaveNoError);
        EXPECT_EQ(filters->Item(static_cast<std::int32_t>(device) + 1)->Name(), record.ProductName.data());
    }
}

TEST(BuildingAGraph, NumbersAFilterThatIsPutInAgain) {
    SoundWorld world;
    const auto graph = world.sound().graphs().newFilgraphManager();
    const auto renderer = registered(*graph, "First");
    EXPECT_EQ(renderer->Filter()->Name(), "First");
    EXPECT_EQ(renderer->Filter()->Name(), "First 0001");
    EXPECT_EQ(graph->FilterCollection()->Item(1)->Name(), "First 0001");
    EXPECT_EQ(graph->FilterCollection()->Item(1)->Pins().Item(0)->Direction(), PinDirection::Input);
    EXPECT_FALSE(graph->FilterCollection()->Item(1)->IsFileSource());
}

TEST(BuildingAGraph, StartsGStreamerWithTheFirstRunOnly) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(0.1));
    world.sound().waveOut().waveOutGetNumDevs();
    const auto threads = threadCount();
    graph->Stop();
    EXPECT_EQ(threadCount(), threads);
    EXPECT_FALSE(gst_is_initialized());
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    EXPECT_TRUE(gst_is_initialized());
}

TEST(BuildingAGraph, HoldsNoFileOnTheServer) {
    SoundWorld world;
    const auto path = world.pathOf(world.makeMessage(0.3));
    const auto graph = world.connected("pcm16.wav");
    graph->Run();
    EXPECT_EQ(std::ranges::count(openFiles(), path), 0);
    std::filesystem::remove(path);
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

TEST(BuildingAGraph, SaysWhatIsWrongWithAFile) {
    SoundWorld world;
    const auto graph = world.sound().graphs().newFilgraphManager();
    const auto source = registered(*graph, kFileSourceName)->Filter();
    EXPECT_EQ(errorOf([&] { source->SetFilename(SoundWorld::nameOf("none.wav")); }), basic::kFileNotFound);
    EXPECT_EQ(errorOf([&] { source->SetFilename(R"(\\srv\Quillamar_0$\..\passwd)"); }), basic::kPathNotFound);
    const auto renderer = registered(*graph, "First")->Filter();
    EXPECT_EQ(errorOf([&] { renderer->SetFilename("x"); }), basic::kNoSuchMember);
    const auto sourcePin = source->Pins().Item(0);
    const auto rendererPin = renderer->Pins().Item(0);
    EXPECT_EQ(errorOf([&] { sourcePin->Connect(*rendererPin); }), basic::kMediaCannotConnect);
    makeFileOf(world.pathOf("page.wav"), std::vector<std::byte>(100, std::byte{'<'}));
    source->SetFilename(SoundWorld::nameOf("page.wav"));
    EXPECT_EQ(errorTextOf([&] { sourcePin->Connect(*rendererPin); }),
              R"(\\srv\Quillamar_0$\page.wav: this is not a WAV file.)");
}

TEST(BuildingAGraph, RefusesConnectionsThatMakeNoSense) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(0.1));
    const auto source = graph->FilterCollection()->Item(0)->Pins().Item(0);
    const auto renderer = graph->FilterCollection()->Item(1)->Pins().Item(0);
    EXPECT_EQ(errorOf([&] { source->Connect(*renderer); }), basic::kMediaCannotConnect); // a second time
    EXPECT_EQ(errorOf([&] { source->Connect(*source); }), basic::kMediaCannotConnect);
    const auto other = world.sound().graphs().newFilgraphManager();
    const auto foreign = registered(*other, "First")->Filter()->Pins().Item(0);
    EXPECT_EQ(errorOf([&] { source->Connect(*foreign); }), basic::kMediaCannotConnect);
}

TEST(BuildingAGraph, RefusesTheRendererOfAnotherGraph) {
    SoundWorld world;
    world.makeMessage(0.1);
    const auto graph = world.sound().graphs().newFilgraphManager();
    const auto other = world.sound().graphs().newFilgraphManager();
    const auto source = registered(*graph, kFileSourceName)->Filter();
    source->SetFilename(SoundWorld::nameOf("pcm16.wav"));
    const auto renderer = registered(*other, "First")->Filter();
    EXPECT_EQ(errorOf([&] { source->Pins().Item(0)->Connect(*renderer->Pins().Item(0)); }),
              basic::kMediaCannotConnect);
}

TEST(BuildingAGraph, ForgetsTheFileBeforeOneThatCannotBeRead) {
    SoundWorld world;
    world.makeMessage(0.1);
    const auto graph = world.sound().graphs().newFilgraphManager();
    const auto source = registered(*graph, kFileSourceName)->Filter();
    source->SetFilename(SoundWorld::nameOf("pcm16.wav"));
    EXPECT_EQ(errorOf([&] { source->SetFilename(SoundWorld::nameOf("none.wav")); }), basic::kFileNotFound);
    const auto renderer = registered(*graph, "First")->Filter();
    EXPECT_EQ(errorOf([&] { source->Pins().Item(0)->Connect(*renderer->Pins().Item(0)); }),
              basic::kMediaCannotConnect);
}

TEST(BuildingAGraph, IsRefusedWhileTheGraphRuns) {
    SoundWorld world;
    world.makeMessage(0.1);
    const auto graph = world.sound().graphs().newFilgraphManager();
    const auto source = registered(*graph, kFileSourceName)->Filter();
    source->SetFilename(SoundWorld::nameOf("pcm16.wav"));
    const auto renderer = registered(*graph, "First")->Filter();
    graph->Run();
    EXPECT_EQ(errorOf([&] { source->Pins().Item(0)->Connect(*renderer->Pins().Item(0)); }),
              basic::kMediaWrongState);
}

TEST(BuildingAGraph, OutlivedByItsFiltersLeavesThemWithoutAGraph) {
    SoundWorld world;
    auto graph = world.connected(world.makeMessage(0.1));
    const auto registeredFilter = registered(*graph, "First");
    const auto source = graph->FilterCollection()->Item(0);
    const auto renderer = graph->FilterCollection()->Item(1);
    graph.reset();
    EXPECT_EQ(errorOf([&] { registeredFilter->Filter(); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { source->SetFilename("x"); }), basic::kObjectNotSet);
    EXPECT_EQ(errorOf([&] { source->Pins().Item(0)->Connect(*renderer->Pins().Item(0)); }),
              basic::kObjectNotSet);
}

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
    const auto graph = world.connected(world.makeMessage(5));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.1));
    graph->SetCurrentPosition(5.4);
    EXPECT_EQ(graph->CurrentPosition(), 5);
    EXPECT_EQ(endOf(*graph, std::chrono::seconds{4}), EventCode::Complete);
}

TEST(APlayingGraph, BeginsAnewWhenItIsSentBeforeTheBeginning) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(1));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.4));
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
    const auto graph = world.connected(world.makeMessage(1));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.3));
    graph->Stop();
    EXPECT_TRUE(waitUntil([&] { return world.server.streamCount() == 0; }));
    const double position = graph->CurrentPosition();
    EXPECT_GE(position, 0.3);
    graph->Run();
    EXPECT_GE(graph->CurrentPosition(), position);
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
}

TEST(APlayingGraph, IsHeardOnceThoughItIsRunAgain) {
    SoundWorld world;
    const auto graph = world.connected(world.makeMessage(30));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.2));
    graph->Pause();
    ASSERT_TRUE(waitUntil([&] { return world.server.streamCount() == 0; }));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, graph->CurrentPosition() + 0.3));
    EXPECT_EQ(world.server.streamCount(), 1U);
}

TEST(APlayingGraph, LetsTheDeviceGoWhenItIsReleased) {
    SoundWorld world;
    auto graph = world.connected(world.makeMessage(5));
    graph->Run();
    ASSERT_TRUE(comesTo(*graph, 0.1));
    EXPECT_EQ(world.server.streamCount(), 1U);
    graph.reset();
    EXPECT_TRUE(waitUntil([&] { return world.server.streamCount() == 0; }));
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
    EXPECT_TRUE(waitUntil([&] { return world.server.streamCount() == 0; }));
}

} // namespace
} // namespace mediagraph::testing
