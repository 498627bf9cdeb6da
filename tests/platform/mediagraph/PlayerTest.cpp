// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a player does step by step, where the order of things is what counts.

#include "tests/platform/mediagraph/PlayedAlone.h"
#include "tests/platform/mediagraph/Recording.h"

#include <gtest/gtest.h>

namespace mediagraph::testing {
namespace {

const OutputDevice kDefault{DeviceList::kDefaultName, "pulsesink", ""};

// The failure came too late to be told: what is wanted meanwhile is not to be left waiting for a dead stream.
TEST(PlayerAlone, PlaysTheNewestOrderAfterAFailureOfAnEarlierOne) {
    SoundWorld world;
    PlayedAlone played(world, world.makeMessage(3), kDefault);
    played.desk->want(PlayState::Playing);
    const PlayOrder early = played.newest();
    ASSERT_TRUE(played.comesTo(0.1));
    played.desk->want(PlayState::Paused);
    played.desk->want(PlayState::Playing);
    world.server.kill();
    ASSERT_TRUE(waitUntil([&] {
        played.player.step(early);
        return !played.player.idleTime();
    }));
    world.server.start();
    const double position = played.desk->position();
    EXPECT_TRUE(played.comesTo(position + 0.1));
}

TEST(PlayerAlone, CountsOnFromThePlaceWhereItBegan) {
    SoundWorld world;
    PlayedAlone played(world, world.makeMessage(5), kDefault);
    played.desk->seek(2);
    played.desk->want(PlayState::Playing);
    ASSERT_TRUE(played.stepsUntil([&] { return played.desk->position() != 2; }));
    EXPECT_GT(played.desk->position(), 2);
}

// Not at the last beat's: that one may be long ago on a busy machine.
TEST(PlayerAlone, TellsThePlaceOfThePauseItself) {
    SoundWorld world;
    PlayedAlone played(world, world.makeMessage(5), kDefault);
    played.desk->want(PlayState::Playing);
    ASSERT_TRUE(played.comesTo(0.1));
    const double position = played.desk->position();
    Recording("first", world.pathOf("passed")).finish(0.5);
    played.desk->want(PlayState::Paused);
    played.player.step(played.newest());
    EXPECT_GT(played.desk->position(), position + 0.3);
}

} // namespace
} // namespace mediagraph::testing
