// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the engine reports of the real graph: files that cannot be played, devices and sound servers that go.
#include "tests/audio/WaveSoundTest.h"

namespace audio {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

class FailedWaveTest : public WaveSoundTest {
protected:
    FailedWaveTest() { makeWave(); }

    void expectPlays() {
        wave->StopPlayRec(); // a play that failed still counts as one
        errorHandler.reports.clear();
        const int before = done;
        ASSERT_TRUE(play(world.makeMessage(0.2, {"next"})));
        EXPECT_TRUE(ends());
        EXPECT_EQ(done, before + 1);
        EXPECT_THAT(errorHandler.reports, IsEmpty());
    }
    void preferDevice(const std::string& name) {
        settings.putUser(
            "[HKEY_CURRENT_USER\\Software\\Microsoft\\Multimedia\\Sound Mapper]\n\"Playback\"=\"" + name +
            "\"\n");
        makeWave();
    }
};

TEST_F(FailedWaveTest, FileThatIsGoneIsReportedWithItsNumberAndThePlayFails) {
    EXPECT_FALSE(play("none.wav"));
    EXPECT_THAT(reported(), ElementsAre("53 clsWave.AddRegFilter", "3654 clsWave.PlayWave"));
    expectPlays();
}

TEST_F(FailedWaveTest, WebPageNamedWavIsReportedAsOne) {
    mediagraph::testing::makeFileOf(world.pathOf("page.wav"), std::vector<std::byte>(100, std::byte{'<'}));
    EXPECT_FALSE(play("page.wav"));
    EXPECT_THAT(reported(), ElementsAre(EndsWith("clsWave.Playwave")));
    EXPECT_EQ(errorHandler.reports[0].description, SoundWorld::nameOf("page.wav: this is not a WAV file."));
    expectPlays();
}

TEST_F(FailedWaveTest, FileWithoutASampleIsReported) {
    const auto file = world.makeMessage(0);
    EXPECT_FALSE(play(file));
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_THAT(errorHandler.reports[0].description, HasSubstr("holds no sound"));
    expectPlays();
}

TEST_F(FailedWaveTest, SoundServerThatGoesIsToldOnceAndTheNextPlayWorksWhenItIsBack) {
    ASSERT_TRUE(play(world.makeMessage(20)));
    ASSERT_TRUE(comesTo(0.2));
    world.server.kill();
    EXPECT_TRUE(ends());
    EXPECT_THAT(reported(), ElementsAre(EndsWith(" clsWave.Timer_ThatTime")));
    EXPECT_EQ(done, 1);
    EXPECT_EQ(wave->PlayState(), clsWave::kStopped);
    world.server.start();
    expectPlays();
}

TEST_F(FailedWaveTest, DeviceThatWasRemovedEndsAsAQuietStop) {
    ASSERT_TRUE(play(world.makeMessage(20)));
    ASSERT_TRUE(comesTo(0.2));
    world.server.unplug("first");
    EXPECT_TRUE(ends());
    EXPECT_EQ(done, 1);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    expectPlays();
}

TEST_F(FailedWaveTest, PreferredDeviceIsTheOneOfTheSettings) {
    preferDevice("second"); // names compare without case
    Recording first("first", world.pathOf("first"));
    Recording second("second", world.pathOf("second"));
    ASSERT_TRUE(play(world.makeMessage(0.3)));
    EXPECT_TRUE(ends());
    first.finish();
    second.finish();
    EXPECT_TRUE(first.stretches().empty());
    EXPECT_EQ(second.stretches().size(), 1U);
}

TEST_F(FailedWaveTest, PreferredDeviceThatIsNotThereIsReportedByItsName) {
    preferDevice("Headset");
    EXPECT_FALSE(play(world.makeMessage(0.3)));
    EXPECT_THAT(reported(), ElementsAre("3670 clsWave.AddRegFilter", "3655 clsWave.PlayWave"));
    EXPECT_EQ(errorHandler.reports[1].description, "AddFilter failed: 'Headset'");
    EXPECT_TRUE(wave->IsPlaying());
}

// The real graphs, which count how often the sound server is asked for its devices.
class CountedGraphs final : public mediagraph::MediaGraphs {
public:
    explicit CountedGraphs(SoundWorld& world) : m_world(world) {}
    std::shared_ptr<mediagraph::FilgraphManager> newFilgraphManager() override {
        return m_world.newGraph(mediagraph::DeviceList({[this] {
            ++looks;
            return mediagraph::DeviceList::fromPulse();
        }}));
    }
    int looks = 0;

private:
    SoundWorld& m_world;
};

// It may hang, and then the end of the program would wait for it.
TEST_F(FailedWaveTest, EndOfTheEngineAsksTheSoundServerNothing) {
    CountedGraphs graphs(world);
    makeWave(graphs);
    EXPECT_TRUE(play(world.makeMessage(5)));
    EXPECT_EQ(graphs.looks, 1);
    EXPECT_TRUE(wave->UnInit());
    wave.reset();
    EXPECT_EQ(graphs.looks, 1);
}

class SilentWaveTest : public WaveSoundTest {
protected:
    SilentWaveTest() : WaveSoundTest(SoundServer::Begin::Off) { makeWave(); }
};

TEST_F(SilentWaveTest, NoDeviceIsToldAtThePlayAndADeviceThatComesIsUsed) {
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    EXPECT_FALSE(play(world.makeMessage(0.2)));
    ASSERT_EQ(settings.boxes.boxes.size(), 1U);
    EXPECT_EQ(settings.boxes.boxes[0].text, "No audio device present on this system. Cannot play!");
    world.server.start();
    EXPECT_TRUE(play("pcm16.wav"));
    EXPECT_TRUE(ends());
    EXPECT_EQ(settings.boxes.boxes.size(), 1U);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

} // namespace
} // namespace audio
