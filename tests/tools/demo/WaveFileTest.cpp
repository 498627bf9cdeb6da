// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/WaveFile.h"

#include "tools/demo/SpeechSynthesiser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace demo {
namespace {

std::uint32_t number(const std::vector<std::byte>& bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes.data() + at, size);
    return value;
}

TEST(WaveFile, HeaderStatesWhatFollows) {
    const std::vector<std::int16_t> samples{0, 32767, -32768};
    const auto wide = encodeWave(samples, SampleSize::Bits16);
    ASSERT_EQ(wide.size(), 44U + 6U);
    EXPECT_EQ(std::memcmp(wide.data(), "RIFF", 4), 0);
    EXPECT_EQ(number(wide, 4, 4), wide.size() - 8);
    EXPECT_EQ(number(wide, 24, 4), 8000U);
    EXPECT_EQ(number(wide, 28, 4), 16000U);
    EXPECT_EQ(number(wide, 34, 2), 16U);
    EXPECT_EQ(number(wide, 40, 4), 6U);
    EXPECT_EQ(number(wide, 46, 2), 32767U);
}

TEST(WaveFile, BytesAreUnsignedAndPaddedToAnEvenLength) {
    const std::vector<std::int16_t> samples{0, 32767, -32768};
    const auto narrow = encodeWave(samples, SampleSize::Bits8);
    ASSERT_EQ(narrow.size(), 44U + 4U);
    EXPECT_EQ(number(narrow, 4, 4), narrow.size() - 8);
    EXPECT_EQ(number(narrow, 40, 4), 3U);
    EXPECT_EQ(number(narrow, 44, 3), 0x00FF80U);
}

TEST(SpeechSynthesiser, GivesTheLengthAskedForAndIsNotSilent) {
    const auto samples = synthesiseSpeech(3, 1);
    EXPECT_EQ(samples.size(), 3U * kSampleRate);
    const auto [low, high] = std::ranges::minmax(samples);
    EXPECT_TRUE(high > 10000 || low < -10000);
    // Syllables and pauses: some tenths of a second are loud, some are nearly silent.
    int loud = 0;
    int quiet = 0;
    for (std::size_t at = 0; at + 400 <= samples.size(); at += 400) {
        int peak = 0;
        for (std::size_t i = at; i < at + 400; ++i)
            peak = std::max(peak, std::abs(int{samples[i]}));
        loud += peak > 4000 ? 1 : 0;
        quiet += peak < 400 ? 1 : 0;
    }
    EXPECT_GT(loud, 10);
    EXPECT_GT(quiet, 0);
}

TEST(SpeechSynthesiser, VoicesDifferAndRepeat) {
    EXPECT_EQ(synthesiseSpeech(1, 5), synthesiseSpeech(1, 5));
    EXPECT_NE(synthesiseSpeech(1, 5), synthesiseSpeech(1, 6));
}

} // namespace
} // namespace demo
