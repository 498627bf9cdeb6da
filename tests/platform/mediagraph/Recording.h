// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What one sink plays, heard at its monitor, from the moment of construction on. A monitor gives silence
// while nothing plays, so what was heard tells when it was. 48 kHz, both channels.

#include "platform/mediagraph/Samples.h"
#include "tests/platform/mediagraph/ChildProcess.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace mediagraph::testing {

// A stretch of sound without a longer pause in it, in seconds from the beginning of the recording.
struct Stretch {
    double begin = 0;
    double end = 0;
    double length() const { return end - begin; }
};

class Recording {
public:
    static constexpr int kRate = 48'000;

    static constexpr std::size_t kWavHeader = 44;

    // Returns when the recording runs.
    Recording(const std::string& sink, const std::string& file);
    // By another program, which writes the file itself, with so many bytes before the samples.
    Recording(const std::vector<std::string>& command, const std::string& file, std::size_t headerSize);

    // Goes on for that much more of recorded time, then ends.
    void finish(double seconds = 0.4);

    // Left channel; after finish().
    const std::vector<std::int16_t>& heard() const { return m_heard; }
    // Where there is sound, parted by pauses of at least `pause` seconds.
    std::vector<Stretch> stretches(double pause = 0.05) const;
    // How alike the sound from `begin` on and the message from `from` on are over `length` seconds; 1 for the
    // same. Moves up to 10 ms to find the best place.
    double likeness(double begin, const Samples& message, double from, double length) const;
    // The moment of the message that is heard at `at`, looked for around `expected`.
    double momentAt(double at, const Samples& message, double expected) const;

private:
    double secondsSoFar() const;

    std::string m_file;
    std::size_t m_headerSize = 0;
    ChildProcess m_process;
    std::vector<std::int16_t> m_heard;
};

} // namespace mediagraph::testing
