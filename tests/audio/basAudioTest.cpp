// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/basAudio.h"

#include "tests/audio/AudioWorld.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <stdexcept>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AudioDevicesTest : public AudioWorld {
protected:
    std::vector<std::string> names() {
        std::vector<std::string> all;
        for (const auto& device : devices.GetAudioOutDevices())
            all.emplace_back(device.ProductName.data());
        return all;
    }
};

TEST_F(AudioDevicesTest, NoDeviceIsOneRecordWithoutAName) {
    sound.devices.clear();
    EXPECT_EQ(devices.GetAudioOutDevices(), (std::vector<mediagraph::WaveOutCaps>(1)));
    EXPECT_THAT(sound.takeLog(), ElementsAre("waveOutGetNumDevs"));
}

TEST_F(AudioDevicesTest, AllDevicesComeInTheirOrder) {
    sound.devices = {"Speaker", "Headset", "HDMI"};
    EXPECT_THAT(names(), ElementsAre("Speaker", "Headset", "HDMI"));
    EXPECT_EQ(sound.asksForSize, 52U);
}

TEST_F(AudioDevicesTest, DeviceThatCannotBeAskedGivesTheOneEmptyRecord) {
    sound.devices = {"Speaker", "Headset", "HDMI"};
    sound.failingDevice = 1;
    EXPECT_THAT(names(), ElementsAre(""));
    EXPECT_THAT(sound.takeLog(),
                ElementsAre("waveOutGetNumDevs", "waveOutGetDevCapsA 0", "waveOutGetDevCapsA 1"));
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(AudioDevicesTest, UnexpectedFailureIsReportedAndGivesTheOneEmptyRecord) {
    sound.fail("waveOutGetDevCapsA");
    EXPECT_THAT(names(), ElementsAre(""));
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "basAudio");
    EXPECT_EQ(errorHandler.reports[0].procedure, "basAudio.GetAudioOutDevices");
}

TEST_F(AudioDevicesTest, PauseIsTenSleepsWithEventsAfterEach) {
    std::vector<std::size_t> seenAt;
    std::function<void()> post = [&] {
        QMetaObject::invokeMethod(
            qApp, [&] { seenAt.push_back(slept.size()); }, Qt::QueuedConnection);
    };
    basAudio wait{errorHandler, sound, [&](std::int32_t ms) {
                      slept.push_back(ms);
                      post();
                  }};
    wait.PauseWithEvents(500);
    EXPECT_EQ(slept, std::vector<std::int32_t>(10, 50));
    EXPECT_THAT(seenAt, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
}

TEST_F(AudioDevicesTest, PauseTakesWholeMilliseconds) {
    devices.PauseWithEvents(19);
    EXPECT_EQ(slept, std::vector<std::int32_t>(10, 1));
}

TEST_F(AudioDevicesTest, PauseIgnoresFailures) {
    int sleeps = 0;
    basAudio wait{errorHandler, sound, [&](std::int32_t) {
                      ++sleeps;
                      throw std::runtime_error("interrupted");
                  }};
    wait.PauseWithEvents(500);
    EXPECT_EQ(sleeps, 10);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(AudioDevicesTest, PauseLetsEventsRunAfterASleepThatFails) {
    int seen = 0;
    basAudio wait{errorHandler, sound, [&](std::int32_t) {
                      QMetaObject::invokeMethod(
                          qApp, [&] { ++seen; }, Qt::QueuedConnection);
                      throw std::runtime_error("interrupted");
                  }};
    wait.PauseWithEvents(500);
    EXPECT_EQ(seen, 10);
}

TEST_F(AudioDevicesTest, RealPauseLastsItsTime) {
    basAudio wait{errorHandler, sound};
    const auto start = std::chrono::steady_clock::now();
    wait.PauseWithEvents(100);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100));
}

} // namespace
} // namespace audio
