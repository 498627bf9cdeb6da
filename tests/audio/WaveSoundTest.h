// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The engine over the real filter graph: messages on a share, a sound server of the test's own whose sinks
// are heard, and what the engine tells meanwhile.

#include "platform/basic/SystemClock.h"
#include "tests/audio/ReachableWave.h"
#include "tests/data/SettingsWorld.h"
#include "tests/errors/RecordingErrorHandler.h"
#include "tests/platform/mediagraph/Recording.h"
#include "tests/platform/mediagraph/SoundWorld.h"

#include <QTest>

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace audio {

using mediagraph::testing::Recording;
using mediagraph::testing::SoundServer;
using mediagraph::testing::SoundWorld;

class WaveSoundTest : public testing::Test {
protected:
    static constexpr int kLimitMs = 20'000; // a loaded machine is slow

    explicit WaveSoundTest(SoundServer::Begin begin = SoundServer::Begin::Started) : world(begin) {}

    void makeWave() { makeWave(world.sound().graphs()); }
    void makeWave(mediagraph::MediaGraphs& graphs) {
        wave = std::make_shared<ReachableWave>(
            WaveServices{errorHandler, settings.boxes, graphs, devices, settings.values, clock});
        QObject::connect(wave.get(), &clsWave::PlayDone, [this] { ++done; });
        QObject::connect(wave.get(), &clsWave::Progress, [this](basic::Currency, basic::Currency seconds) {
            places.push_back(static_cast<double>(seconds.tenThousandths) / 10'000);
        });
    }
    bool play(const std::string& file) { return wave->PlayWave(SoundWorld::nameOf(file)); }
    // The file's place as the next tick tells it.
    double place() {
        Q_EMIT wave->Timer1().ThatTime();
        return places.empty() ? -1 : places.back();
    }
    static bool comesTrue(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, kLimitMs);
    }
    bool comesTo(double seconds) {
        return comesTrue([&] { return !places.empty() && places.back() >= seconds; });
    }
    bool ends() {
        return comesTrue([this] { return !wave->IsPlaying(); });
    }
    bool isDeviceFree() {
        return comesTrue([this] { return world.server.streamCount() == 0; });
    }
    std::vector<std::string> reported() const {
        std::vector<std::string> lines;
        for (const auto& report : errorHandler.reports)
            lines.push_back(std::to_string(report.number) + " " + report.procedure);
        return lines;
    }

    SoundWorld world;
    errors::RecordingErrorHandler errorHandler;
    data::SettingsWorld settings;
    basic::SystemClock clock;
    basAudio devices{errorHandler, world.sound().waveOut()};
    std::shared_ptr<ReachableWave> wave;
    int done = 0;
    std::vector<double> places; // told by Progress
};

} // namespace audio
