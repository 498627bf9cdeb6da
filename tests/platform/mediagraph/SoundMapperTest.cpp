// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/SoundMapper.h"

#include "platform/mediagraph/WaveOut.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace mediagraph {
namespace {

class ListedDevices final : public WaveOut {
public:
    std::vector<std::string_view> names;
    std::uint32_t result = kWaveNoError;
    int looks = 0;

    std::uint32_t waveOutGetNumDevs() override {
        ++looks;
        return static_cast<std::uint32_t>(names.size());
    }
    std::uint32_t waveOutGetDevCapsA(std::uint32_t device, WaveOutCaps& record, std::uint32_t) override {
        record = {};
        std::ranges::copy(names.at(device), record.ProductName.begin());
        return result;
    }
};

TEST(SoundMapper, AnswersWhatIsStoredAndAsksNobody) {
    ListedDevices devices;
    devices.names = {"Default"};
    EXPECT_EQ(SoundMapper(devices).Playback("Headset"), "Headset");
    EXPECT_EQ(devices.looks, 0);
}

TEST(SoundMapper, AnswersTheDesktopsDefaultForAnAbsentValue) {
    ListedDevices devices;
    devices.names = {"Default", "Headset"};
    EXPECT_EQ(SoundMapper(devices).Playback(""), "Default");
}

TEST(SoundMapper, IsEmptyWithoutADevice) {
    ListedDevices devices;
    EXPECT_EQ(SoundMapper(devices).Playback(""), "");
}

TEST(SoundMapper, IsEmptyWhenTheDeviceCannotBeAsked) {
    ListedDevices devices;
    devices.names = {"Default"};
    devices.result = kWaveBadDeviceId;
    EXPECT_EQ(SoundMapper(devices).Playback(""), "");
}

} // namespace
} // namespace mediagraph
