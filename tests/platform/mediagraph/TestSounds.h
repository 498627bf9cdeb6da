// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Sounds whose every moment is known, as WAV files of any kind that libsndfile writes. The sound sweeps from
// 300 Hz upwards, so that no stretch of it looks like another; each channel is of another loudness.

#include <sndfile.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mediagraph::testing {

struct SoundKind {
    std::string name;
    int format = SF_FORMAT_PCM_16; // libsndfile's subformat
    int rate = 8000;
    int channels = 1;
};

// What the sweep is at a moment, -1 to 1.
double soundAt(double seconds, int channel);

// Interleaved samples of `seconds`.
std::vector<std::int16_t> soundOf(int rate, int channels, double seconds);

// A whole file; the test fails when it cannot be written.
void makeSoundFile(const std::string& path, const SoundKind& kind, double seconds);

// Where the letters are; the test fails when they are not there.
std::size_t placeOf(std::string_view letters, const std::vector<std::byte>& bytes);

std::vector<std::byte> bytesOf(const std::string& path);
void makeFileOf(const std::string& path, const std::vector<std::byte>& bytes);

} // namespace mediagraph::testing
