// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/mediagraph/TestSounds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <memory>
#include <numbers>

namespace mediagraph::testing {
namespace {

constexpr double kLowest = 300;      // Hz
constexpr double kHzInASecond = 400; // how fast it rises
constexpr double kLoudness = 0.6;

struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
};

// libsndfile counts whole blocks of IMA ADPCM; recorders count what was said.
void stateFrames(const std::string& path, std::size_t frames) {
    auto bytes = bytesOf(path);
    const std::size_t fact = placeOf("fact", bytes);
    for (std::size_t i = 0; i < 4; ++i)
        bytes[fact + 8 + i] = static_cast<std::byte>(frames >> (8 * i));
    makeFileOf(path, bytes);
}

} // namespace

double soundAt(double seconds, int channel) {
    const double turns = (kLowest + kHzInASecond * seconds / 2) * seconds;
    return kLoudness / (1 + channel) * std::cos(2 * std::numbers::pi * turns);
}

std::vector<std::int16_t> soundOf(int rate, int channels, double seconds) {
    std::vector<std::int16_t> samples;
    const auto frames = static_cast<int>(std::lround(seconds * rate));
    for (int frame = 0; frame < frames; ++frame)
        for (int channel = 0; channel < channels; ++channel)
            samples.push_back(static_cast<std::int16_t>(
                std::lround(32767 * soundAt(static_cast<double>(frame) / rate, channel))));
    return samples;
}

void makeSoundFile(const std::string& path, const SoundKind& kind, double seconds) {
    SF_INFO info{};
    info.samplerate = kind.rate;
    info.channels = kind.channels;
    info.format = SF_FORMAT_WAV | kind.format;
    std::unique_ptr<SNDFILE, Close> file(sf_open(path.c_str(), SFM_WRITE, &info));
    ASSERT_TRUE(file) << kind.name << ": " << sf_strerror(nullptr);
    const auto samples = soundOf(kind.rate, kind.channels, seconds);
    const auto frames = static_cast<sf_count_t>(samples.size()) / kind.channels;
    ASSERT_EQ(sf_writef_short(file.get(), samples.data(), frames), frames) << kind.name;
    file.reset();
    if (kind.format == SF_FORMAT_IMA_ADPCM)
        stateFrames(path, static_cast<std::size_t>(frames));
}

std::size_t placeOf(std::string_view letters, const std::vector<std::byte>& bytes) {
    const auto* begin = reinterpret_cast<const char*>(bytes.data());
    const std::size_t place = std::string_view(begin, bytes.size()).find(letters);
    EXPECT_NE(place, std::string_view::npos) << letters;
    return place;
}

std::vector<std::byte> bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const auto* begin = reinterpret_cast<const std::byte*>(text.data());
    return {begin, begin + text.size()};
}

void makeFileOf(const std::string& path, const std::vector<std::byte>& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.flush().good()) << path;
}

} // namespace mediagraph::testing
