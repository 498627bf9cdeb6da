// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/clsWave.h"
#include "tests/audio/AudioWorld.h"

#include <gmock/gmock.h>

namespace audio {
namespace {

using mediagraph::PinDirection;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class WaveFilterTest : public AudioWorld {
protected:
    // Plays a file on a new engine and gives the calls of the play.
    std::vector<std::string> play() {
        wave = newWave();
        sound.takeLog();
        played = wave->PlayWave(kFile);
        return sound.takeLog();
    }
    void prefer(const std::string& device) {
        settings.putUser(
            "[HKEY_CURRENT_USER\\Software\\Microsoft\\Multimedia\\Sound Mapper]\n\"Playback\"=\"" + device +
            "\"\n");
    }

    std::shared_ptr<ReachableWave> wave;
    bool played = false;
};

TEST_F(WaveFilterTest, PreferredDeviceComesFromTheSettings) {
    prefer("Headset");
    sound.registered.push_back({"Headset", PinDirection::Input, false, {}});
    EXPECT_THAT(play(), Contains("Connect File Source (Async.) > Headset"));
    EXPECT_EQ(wave->DefaultAudioDevice, "Headset");
}

TEST_F(WaveFilterTest, DeviceListIsAskedAlsoWhenTheSettingsNameADevice) {
    prefer("Headset");
    wave = newWave();
    EXPECT_THAT(sound.takeLog(), ElementsAre("waveOutGetNumDevs", "waveOutGetDevCapsA 0"));
}

TEST_F(WaveFilterTest, FirstDeviceIsCutAtItsFirstNul) {
    sound.devices = {std::string("Speaker\0hidden", 14), "Other"};
    EXPECT_EQ(newWave()->DefaultAudioDevice, "Speaker");
}

TEST_F(WaveFilterTest, FirstDeviceWithThirtyTwoLettersIsTakenWhole) {
    sound.devices = {std::string(32, 'x')};
    EXPECT_EQ(newWave()->DefaultAudioDevice, std::string(32, 'x'));
}

TEST_F(WaveFilterTest, NoSettingAndNoDeviceRefusesWithTheMessage) {
    sound.devices.clear();
    EXPECT_THAT(play(), ElementsAre("waveOutGetNumDevs"));
    EXPECT_FALSE(played);
    ASSERT_EQ(messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(messageBoxes.boxes[0].text, "No audio device present on this system. Cannot play!");
    EXPECT_EQ(messageBoxes.boxes[0].style, forms::kOkOnly);
    EXPECT_EQ(messageBoxes.boxes[0].title, "");
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    EXPECT_FALSE(wave->IsPlaying());
}

TEST_F(WaveFilterTest, DeviceThatCameSinceIsFoundByThePlay) {
    sound.devices.clear();
    wave = newWave();
    EXPECT_EQ(wave->DefaultAudioDevice, "");
    sound.devices = {"Speaker"};
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_THAT(messageBoxes.boxes, IsEmpty());
}

TEST_F(WaveFilterTest, OtherDeviceThanThePreferredOneIsUsedWhenItIsSet) {
    sound.registered.push_back({"Headset", PinDirection::Input, false, {}});
    wave = newWave();
    wave->AudioDeviceName = "headset";
    EXPECT_TRUE(wave->PlayWave(kFile));
    EXPECT_THAT(sound.takeLog(), Contains("Connect File Source (Async.) > Headset"));
}

TEST_F(WaveFilterTest, RendererWhoseNameInTheGraphBeginsWithTheDevicesIsAccepted) {
    sound.registered[1].nameInGraph = "SPEAKER (built in) 0001";
    EXPECT_THAT(play(), Contains("Connect File Source (Async.) > SPEAKER (built in) 0001"));
    EXPECT_TRUE(played);
}

TEST_F(WaveFilterTest, RegisteredNamesCompareWholeAndWithoutCase) {
    sound.registered = {{"FILE SOURCE (async.)", PinDirection::Output, true, {}},
                        {"Speaker 2", PinDirection::Input, false, {}},
                        {"SPEAKER", PinDirection::Input, false, {}}};
    EXPECT_THAT(play(), Contains("Connect FILE SOURCE (async.) > SPEAKER"));
}

// Looking at a candidate puts it into the graph, where the pin of another kind is passed over.
TEST_F(WaveFilterTest, CandidateOfTheWrongKindStaysInTheGraphAndIsPassedOver) {
    sound.registered.insert(sound.registered.begin() + 1,
                            {"Speaker", PinDirection::Output, false, "Speaker in"});
    const auto log = play();
    EXPECT_TRUE(played);
    EXPECT_THAT(log, testing::IsSupersetOf({"Filter Speaker", "Direction Speaker in",
                                            "Connect File Source (Async.) > Speaker"}));
    EXPECT_EQ(std::count(log.begin(), log.end(), "Direction Speaker in"), 2);
}

TEST_F(WaveFilterTest, OnlyTheFirstRegisteredFilterThatPassesIsUsed) {
    sound.registered.push_back({"Speaker", PinDirection::Input, false, "Speaker later"});
    EXPECT_THAT(play(), Not(Contains("Filter Speaker later")));
    EXPECT_THAT(play(), Contains("Connect File Source (Async.) > Speaker"));
}

TEST_F(WaveFilterTest, RendererThatReadsFilesIsRefused) {
    sound.registered[1].isFileSource = true;
    play();
    EXPECT_FALSE(played);
    EXPECT_THAT(reported(), ElementsAre("3655 clsWave.PlayWave"));
}

class GraphFiltersTest : public AudioWorld {
protected:
    GraphFiltersTest() : graph(sound.newFilgraphManager()) {
        filters.take(*graph);
        sound.takeLog();
    }
    std::shared_ptr<mediagraph::IRegFilterInfo> registered(int index) const {
        return graph->RegFilterCollection()->Item(index);
    }

    std::shared_ptr<mediagraph::FilgraphManager> graph;
    GraphFilters filters{errorHandler};
};

TEST_F(GraphFiltersTest, AnyFilterPassesAsTheSourceUnseen) {
    EXPECT_TRUE(filters.CheckFilterForType(*registered(1), kPinTypeAny));
    EXPECT_THAT(sound.takeLog(), Not(Contains("Filter Speaker")));
}

TEST_F(GraphFiltersTest, TypeTwoWantsOutputAndEveryOtherInput) {
    EXPECT_TRUE(filters.CheckFilterForType(*registered(0), kPinTypeOutput));
    EXPECT_FALSE(filters.CheckFilterForType(*registered(1), kPinTypeOutput));
    EXPECT_FALSE(filters.CheckFilterForType(*registered(0), kPinTypeInput));
    EXPECT_TRUE(filters.CheckFilterForType(*registered(1), kPinTypeInput));
    EXPECT_TRUE(filters.CheckFilterForType(*registered(1), 7));
    EXPECT_THAT(sound.takeLog(), Contains("Filter File Source (Async.)"));
}

TEST_F(GraphFiltersTest, FileSourceWithoutAFileIsRefused) {
    EXPECT_FALSE(filters.AddRegFilter("File Source (Async.)", {}, kPinTypeAny));
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(GraphFiltersTest, FilterThatIsNotRegisteredIsReportedByName) {
    EXPECT_FALSE(filters.AddRegFilter("Kopfhörer", {}, kPinTypeInput));
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "clsWave");
    EXPECT_EQ(errorHandler.reports[0].procedure, "clsWave.AddRegFilter");
    EXPECT_EQ(errorHandler.reports[0].number, 3670);
    EXPECT_EQ(errorHandler.reports[0].description, "Filter 'Kopfhörer' could not be found!");
    EXPECT_GT(errorHandler.reports[0].line, 0);
}

TEST_F(GraphFiltersTest, AppendedFilterIsFoundByNameAlone) {
    GraphFilters::Filter found;
    EXPECT_TRUE(filters.AppendFilter("SPEAKER", found));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->Name(), "Speaker");
    EXPECT_FALSE(filters.AppendFilter("Other", found));
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

} // namespace
} // namespace audio
