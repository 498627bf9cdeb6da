// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the real graph answers while it is built.

#include "tests/platform/mediagraph/ErrorOf.h"
#include "tests/platform/mediagraph/SoundWorld.h"

#include <gst/gst.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace mediagraph::testing {
namespace {

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

// A graph that is made for nobody asks no sound server, which might hang.
TEST(BuildingAGraph, LooksForDevicesOnceSomebodyReadsTheRegisteredFilters) {
    SoundWorld world;
    int looks = 0;
    const auto graph = world.newGraph(DeviceList({[&looks] {
        ++looks;
        return std::optional(std::vector<OutputDevice>{{"Headset", "pulsesink", "headset"}});
    }}));
    const auto filters = graph->RegFilterCollection();
    EXPECT_EQ(looks, 0);
    EXPECT_EQ(filters->Count(), 2);
    EXPECT_EQ(filters->Item(1)->Name(), "Headset");
    EXPECT_EQ(looks, 1);
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

} // namespace
} // namespace mediagraph::testing
