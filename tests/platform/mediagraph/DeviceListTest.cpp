// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/DeviceList.h"

#include "platform/mediagraph/ListedWaveOut.h"
#include "platform/mediagraph/WaveOut.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace mediagraph {
namespace {

using Devices = std::vector<OutputDevice>;

DeviceList listOf(std::vector<std::string> names) {
    return DeviceList({[names] {
        Devices devices;
        for (const auto& name : names)
            devices.push_back({name, "pulsesink", name});
        return std::optional(devices);
    }});
}

std::vector<std::string> namesOf(const DeviceList& list) {
    std::vector<std::string> names;
    for (const auto& device : list.look())
        names.push_back(device.name);
    return names;
}

using Names = std::vector<std::string>;

TEST(DeviceList, KeepsNamesWithinThirtyOneBytesAtAWholeCharacter) {
    EXPECT_EQ(namesOf(listOf({"0123456789012345678901234567890X"})),
              Names{"0123456789012345678901234567890"});
    EXPECT_EQ(namesOf(listOf({"01234567890123456789012345678\u00e4\u00f6"})),
              Names{"01234567890123456789012345678\u00e4"});
    EXPECT_EQ(namesOf(listOf({"012345678901234567890123456789\u00e4"})),
              Names{"012345678901234567890123456789"});
}

TEST(DeviceList, NumbersEqualNamesAlsoWhenTheyDifferInCaseOnly) {
    EXPECT_EQ(namesOf(listOf({"Headset", "headset", "HEADSET"})),
              (Names{"Headset", "headset 2", "HEADSET 3"}));
    EXPECT_EQ(namesOf(listOf({"0123456789012345678901234567890A", "0123456789012345678901234567890B"})),
              (Names{"0123456789012345678901234567890", "01234567890123456789012345678 2"}));
}

TEST(DeviceList, NamesADeviceWithoutAName) {
    EXPECT_EQ(namesOf(listOf({"", ""})), (Names{" 2", " 3"}));
}

TEST(DeviceList, AsksTheNextSourceOnlyWhenOneIsNotThere) {
    bool wasAsked = false;
    const DeviceList list({[] { return std::optional<Devices>(); }, [] { return std::optional(Devices{}); },
                           [&] {
                               wasAsked = true;
                               return std::optional(Devices{{"x", "alsasink", ""}});
                           }});
    EXPECT_TRUE(list.look().empty());
    EXPECT_FALSE(wasAsked);
}

TEST(DeviceList, ReadsTheSoundCardsThatCanPlay) {
    const auto devices =
        DeviceList::fromSoundCards("00-00: ALC257 Analog : ALC257 Analog : playback 1 : capture 1\n"
                                   "01-03: HDMI 0 : HDMI 0 : playback 1\n"
                                   "02-00: USB Mic : USB Mic : capture 1\n");
    const Devices expected{{DeviceList::kDefaultName, "alsasink", ""},
                           {"ALC257 Analog", "alsasink", "plughw:0,0"},
                           {"HDMI 0", "alsasink", "plughw:1,3"}};
    EXPECT_EQ(devices, expected);
}

TEST(DeviceList, HasNoSoundCardsInATextWithoutAny) {
    EXPECT_FALSE(DeviceList::fromSoundCards(""));
    EXPECT_FALSE(DeviceList::fromSoundCards("00-00: x\n: playback \n\n"));
}

TEST(DeviceList, HasNoPulseServerWhenThereIsNoDescriptorToBeHad) {
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const bool answers = DeviceList::fromPulse().has_value();
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(answers);
}

TEST(DeviceList, HasNoPipeWireWithoutItsSocket) {
    EXPECT_FALSE(DeviceList::fromPipeWire(PipeWireSocket("/nowhere/pipewire-0")));
}

TEST(ListedWaveOut, AnswersNamesInDeviceOrder) {
    ListedWaveOut waveOut(listOf({"First", "Second"}));
    EXPECT_EQ(waveOut.waveOutGetNumDevs(), 2U);
    WaveOutCaps record;
    EXPECT_EQ(waveOut.waveOutGetDevCapsA(1, record, kWaveOutCapsSize), kWaveNoError);
    EXPECT_STREQ(record.ProductName.data(), "Second");
    EXPECT_EQ(record.Channels, 2);
}

TEST(ListedWaveOut, EndsTheLongestNameWithANul) {
    ListedWaveOut waveOut(listOf({"0123456789012345678901234567890X"}));
    WaveOutCaps record;
    EXPECT_EQ(waveOut.waveOutGetDevCapsA(0, record, kWaveOutCapsSize), kWaveNoError);
    EXPECT_EQ(record.ProductName.back(), '\0');
    EXPECT_STREQ(record.ProductName.data(), "0123456789012345678901234567890");
}

TEST(ListedWaveOut, RefusesADeviceThatIsNotThereAndARecordOfAnotherSize) {
    ListedWaveOut waveOut(listOf({"First"}));
    WaveOutCaps record;
    EXPECT_EQ(waveOut.waveOutGetDevCapsA(1, record, kWaveOutCapsSize), kWaveBadDeviceId);
    EXPECT_EQ(waveOut.waveOutGetDevCapsA(0, record, 50), kWaveInvalidParameter);
    EXPECT_EQ(record, WaveOutCaps());
}

} // namespace
} // namespace mediagraph
