// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What a header may say, and what it says that cannot be.

#include "tests/platform/mediagraph/WaveFiles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace mediagraph::testing {
namespace {

constexpr std::size_t kChannels = 22;
constexpr std::size_t kRate = 24;
constexpr std::size_t kBits = 34;
constexpr std::size_t kDataSize = 40;

// A file of these chunks.
Bytes waveOf(const Bytes& chunks) {
    Bytes file = textBytes("RIFF\x01\x01\x01\x01WAVE");
    insert(file, file.size(), chunks);
    return file;
}

Bytes chunkOf(std::string_view id, const Bytes& content) {
    Bytes chunk = textBytes(id);
    appendLittleEndian(chunk, static_cast<std::uint32_t>(content.size()), 4);
    insert(chunk, chunk.size(), content);
    return chunk;
}

Bytes withNumber(std::size_t at, std::uint32_t number, std::size_t width) {
    auto file = pcm();
    setNumber(file, at, number, width);
    return file;
}

TEST(MessageFormat, StatesBits) {
    EXPECT_EQ(failureOf(withNumber(kBits, 0, 2)), badFormat("the format chunk states samples of 0 bits."));
}

TEST(MessageFormat, StatesARateThatCanBePlayed) {
    EXPECT_EQ(failureOf(withNumber(kRate, 0, 4)),
              badFormat("the format chunk states no channel or no sampling rate."));
    const std::string unsupported = std::to_string(basic::kMediaUnsupported) + ": m.wav: ";
    EXPECT_EQ(failureOf(withNumber(kRate, 999, 4)), unsupported + "999 samples a second cannot be played.");
    EXPECT_EQ(failureOf(withNumber(kRate, 384'001, 4)),
              unsupported + "384001 samples a second cannot be played.");
    EXPECT_EQ(failureOf(withNumber(kRate, 1000, 4)), "");
}

TEST(MessageFormat, StatesNoMoreThanEightChannels) {
    EXPECT_EQ(failureOf(withNumber(kChannels, 9, 2)),
              std::to_string(basic::kMediaUnsupported) + ": m.wav: 9 channels cannot be played.");
    EXPECT_EQ(failureOf(withNumber(kChannels, 8, 2)), "");
}

TEST(MessageFormat, IsMissedAndMustBeWhole) {
    const Bytes sound = chunkOf("data", Bytes(100));
    EXPECT_EQ(failureOf(waveOf(sound)), badFormat("the format chunk is missing."));
    Bytes cut = chunkOf("fmt ", Bytes(13, std::byte{1}));
    insert(cut, cut.size(), sound);
    EXPECT_EQ(failureOf(waveOf(cut)), badFormat("the format chunk is cut off."));
}

TEST(MessageFormat, OfFloatingPointKeepsItsLoudness) {
    Bytes samples;
    for (const float value : {0.0F, 0.5F, -0.5F, 0.25F}) {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        appendLittleEndian(samples, bits, 4);
    }
    Bytes format;
    for (const auto& [number, width] :
         {std::pair{3U, 2U}, {1U, 2U}, {8000U, 4U}, {32000U, 4U}, {4U, 2U}, {32U, 2U}})
        appendLittleEndian(format, number, width);
    Bytes chunks = chunkOf("fmt ", format);
    insert(chunks, chunks.size(), chunkOf("data", samples));
    const auto values = decodeMessage(waveOf(chunks), "m.wav").values;
    ASSERT_EQ(values.size(), 4U);
    EXPECT_GT(values[1], 8000);
    EXPECT_EQ(values[2], -values[1]);
    EXPECT_NEAR(values[3], values[1] / 2, 1);
}

TEST(MessageFormat, ThatIsExtensibleIsThatOfItsCodec) {
    auto file = fileOf({"law", SF_FORMAT_WAVEX | SF_FORMAT_ULAW, 8000, 1}, 0.2);
    const auto whole = decodeMessage(file, "m.wav");
    EXPECT_EQ(whole.frames(), 1600U);
    setNumber(file, 28, 0); // byte rate, block size and bits
    setNumber(file, 32, 0);
    EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
}

TEST(MessageFile, WithoutSoundBeforeOtherChunksHoldsNone) {
    auto file = pcm();
    file.resize(kPcmData);
    setNumber(file, kDataSize, 0);
    insert(file, file.size(), chunkOf("LIST", textBytes("INFO")));
    EXPECT_EQ(failureOf(file), badFormat("the file holds no sound yet."));
}

TEST(MessageFile, WhoseSoundWouldMakeAChunkWithoutANameHoldsSound) {
    auto file = pcm();
    file.resize(kPcmData);
    setNumber(file, kDataSize, 0);
    insert(file, file.size(), chunkOf("\x01\x02\x03\x04", Bytes(4, std::byte{5})));
    EXPECT_EQ(decodeMessage(file, "m.wav").frames(), 6U);
}

TEST(MessageFile, HoldsTheFirstOfTwoSounds) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    auto file = pcm();
    insert(file, file.size(), chunkOf("data", Bytes(100)));
    EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
}

TEST(MessageFile, IsNotBelievedACountThatIsCutOff) {
    auto file = fileOf({"gsm", SF_FORMAT_GSM610, 8000, 1}, 1);
    Bytes chunks = chunkOf("fact", textBytes("\x61\x1e")); // with the next two bytes 7777
    insert(chunks, chunks.size(), chunkOf(std::string_view("\0\0xy", 4), {}));
    insert(file, placeOf("data", file), chunks);
    EXPECT_EQ(decodeMessage(file, "m.wav").frames(), 8000U);
}

TEST(MessageFile, IsAWebPageInCapitalsToo) {
    EXPECT_EQ(failureOf(textBytes("<HTML><BODY>NOT FOUND</BODY></HTML>")),
              badFormat("this is a web page (HTML), not a sound file."));
}

} // namespace
} // namespace mediagraph::testing
