// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What comes out of ALSA where there is no sound server. The library and GStreamer's sink are the real ones;
// the card is one that plays at the test's own server, where it is recorded.
#include "platform/mediagraph/DeviceList.h"
#include "tests/platform/mediagraph/PlayedAlone.h"
#include "tests/platform/mediagraph/Recording.h"
#include "tests/platform/mediagraph/SoundWorld.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace mediagraph::testing {
namespace {

constexpr const char* kPlayingCard = "pcm.!default { type pulse }\n"
                                     "pcm.plughw { @args [ CARD DEV ] @args.CARD { type string }\n"
                                     "  @args.DEV { type string } type pulse device second }\n";
// As a card without ALSA's own conversion: it plays two channels and no other number.
constexpr const char* kStereoCard = "pcm.server { type pulse }\n"
                                    "pcm.mapped { type mmap_emul slave.pcm server }\n"
                                    "pcm.!default { type multi slaves.a { pcm mapped channels 2 }\n"
                                    "  bindings { 0 { slave a channel 0 } 1 { slave a channel 1 } } }\n";
constexpr const char* kMissingCard = "pcm.!default { type hw card 7 }\n";

DeviceList cards() {
    return DeviceList({[] { return DeviceList::fromSoundCards("00-00: Codec : Codec : playback 1\n"); }});
}

struct AlsaWorld : SoundWorld {
    explicit AlsaWorld(const char* configuration) {
        ::setenv("ALSA_CONFIG_PATH", m_folder.makeFile("asound.conf", configuration).c_str(), 1);
    }
    ~AlsaWorld() { ::unsetenv("ALSA_CONFIG_PATH"); }

    Graph connected(const std::string& file, const std::string& device) {
        auto graph = newGraph(cards());
        connect(*graph, file, device);
        return graph;
    }

private:
    share::testing::TemporaryFolder m_folder;
};

void expectHeard(AlsaWorld& world, const SoundKind& kind, const std::string& device,
                 const std::string& sink) {
    const auto file = world.makeMessage(0.7, kind);
    const auto message = world.decoded(file);
    const auto graph = world.connected(file, device);
    Recording recording(sink, world.pathOf("heard"));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    graph->Stop();
    recording.finish();
    const auto stretches = recording.stretches();
    ASSERT_EQ(stretches.size(), 1U);
    EXPECT_NEAR(stretches[0].length(), message.seconds(), 0.03);
    EXPECT_GT(recording.likeness(stretches[0].begin, message, 0, message.seconds()), 0.99);
}

TEST(PlayingAtAlsa, HearsAMessageWholeAtTheDefault) {
    AlsaWorld world(kPlayingCard);
    expectHeard(world, {"ALawAt8000", SF_FORMAT_ALAW, 8000, 1}, DeviceList::kDefaultName, "first");
    expectHeard(world, {"Pcm16At44100Stereo", SF_FORMAT_PCM_16, 44100, 2}, DeviceList::kDefaultName, "first");
}

TEST(PlayingAtAlsa, HearsAMessageWholeAtTheCardThatWasChosen) {
    AlsaWorld world(kPlayingCard);
    expectHeard(world, {"pcm16", SF_FORMAT_PCM_16, 8000, 1}, "Codec", "second");
}

// What it sounds like there is the affair of the library's emulation of a card's memory, which repeats pieces
// when it is late.
TEST(PlayingAtAlsa, PlaysAMessageOfOneChannelAtACardOfTwo) {
    AlsaWorld world(kStereoCard);
    const auto graph = world.connected(world.makeMessage(0.7), DeviceList::kDefaultName);
    Recording recording("first", world.pathOf("heard"));
    graph->Run();
    EXPECT_EQ(endOf(*graph), EventCode::Complete);
    recording.finish();
    EXPECT_FALSE(recording.stretches().empty());
}

// A card plays for one program at a time: the next message needs it at once. Nobody steps after the stop.
TEST(PlayingAtAlsa, LetsTheCardGoWithTheStopThatFollowsTheEnd) {
    AlsaWorld world(kPlayingCard);
    PlayedAlone played(world, world.makeMessage(0.2), {DeviceList::kDefaultName, "alsasink", ""});
    played.desk->want(PlayState::Playing);
    ASSERT_TRUE(played.comesToItsEnd());
    played.desk->want(PlayState::Stopped);
    played.player.step(played.newest());
    EXPECT_TRUE(world.isDeviceFree());
}

TEST(PlayingAtAlsa, TellsOnceThatThereIsNoCard) {
    AlsaWorld world(kMissingCard);
    const auto graph = world.connected(world.makeMessage(0.3), DeviceList::kDefaultName);
    graph->Run();
    EXPECT_EQ(toldFailure(*graph), basic::kMediaNoHardware);
}

} // namespace
} // namespace mediagraph::testing
