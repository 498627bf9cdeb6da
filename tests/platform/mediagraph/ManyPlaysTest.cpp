// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What many plays in a row leave behind: nothing.

#include "tests/platform/mediagraph/SoundWorld.h"
#include "tests/platform/mediagraph/WaitUntil.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

namespace mediagraph::testing {
namespace {

std::ptrdiff_t entriesOf(const char* folder) {
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

void play(SoundWorld& world, const std::string& file) {
    const auto graph = world.connected(file);
    graph->Run();
    ASSERT_EQ(endOf(*graph), EventCode::Complete);
    graph->Stop();
}

TEST(ManyPlays, LeaveNoThreadAndNoDescriptorBehind) {
    SoundWorld world;
    const auto file = world.makeMessage(0.03);
    play(world, file);
    ASSERT_TRUE(waitUntil([] { return entriesOf("/proc/self/task") == 1; }));
    const auto descriptors = entriesOf("/proc/self/fd");
    for (int i = 0; i < 200; ++i)
        play(world, file);
    EXPECT_TRUE(waitUntil([] { return entriesOf("/proc/self/task") == 1; })) << entriesOf("/proc/self/task");
    EXPECT_EQ(entriesOf("/proc/self/fd"), descriptors);
    EXPECT_EQ(world.server.streamCount(), 0U);
}

} // namespace
} // namespace mediagraph::testing
