// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A workstation's sound that plays nothing: graphs, filters and devices whose calls are written down in their
// order, whose answers the test sets, and any of whose calls can be made to fail. The log lives as long as
// the object; graphs must not outlive it.

#include "platform/mediagraph/MediaGraphs.h"
#include "platform/mediagraph/WaveOut.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace audio {

class RecordedSound final : public mediagraph::MediaGraphs, public mediagraph::WaveOut {
public:
    struct Filter {
        std::string name;
        mediagraph::PinDirection direction = mediagraph::PinDirection::Input;
        bool isFileSource = false;
        std::string nameInGraph; // empty: the same
    };

    RecordedSound();

    std::shared_ptr<mediagraph::FilgraphManager> newFilgraphManager() override;
    std::uint32_t waveOutGetNumDevs() override;
    std::uint32_t waveOutGetDevCapsA(std::uint32_t device, mediagraph::WaveOutCaps& record,
                                     std::uint32_t size) override;

    // Writes the call down, and throws if it is one that is to fail.
    void called(const std::string& call);
    // The calls since the last look.
    std::vector<std::string> takeLog();
    // The next `times` calls that begin with these words throw an error of this number.
    void fail(const std::string& beginning, std::int32_t number = 57, int times = 1);
    // The position: the next of those that are set for one read each, or the lasting one.
    double nextPosition();

    std::vector<Filter> registered; // the file source and one renderer to begin with
    std::vector<std::string> devices{"Speaker"};
    std::uint32_t failingDevice = 99;
    std::uint32_t asksForSize = 0;
    double duration = 10;
    double position = 0;
    std::deque<double> positions;
    std::deque<double> durations;
    mediagraph::EventCode ending{}; // 0 as no platform answers it, so that the engine must look
    bool isRunning = true;          // WaitForCompletion fails
    std::function<void(const std::string&)> onCall = [](const std::string&) {};
    std::vector<std::string> log;

private:
    struct Fault {
        std::string beginning;
        std::int32_t number = 0;
        int times = 0;
    };
    std::vector<Fault> m_faults;
};

} // namespace audio
