// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Decoding of whole messages: every codec of telephony, and every header that recorders leave behind.

#include "platform/mediagraph/MessageDecoder.h"

#include "tests/platform/mediagraph/TestSounds.h"
#include "tests/platform/mediagraph/WaveFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace mediagraph::testing {
namespace {

double likenessOf(const Samples& samples, const std::vector<std::int16_t>& original) {
    double product = 0;
    double power = 0;
    double originalPower = 0;
    for (std::size_t i = 0; i < std::min(samples.values.size(), original.size()); ++i) {
        product += static_cast<double>(samples.values[i]) * original[i];
        power += static_cast<double>(samples.values[i]) * samples.values[i];
        originalPower += static_cast<double>(original[i]) * original[i];
    }
    return product / std::sqrt(power * originalPower);
}

struct Codec {
    const char* name;
    int format;
    int maximumChannels;
};

// Every codec at every rate, mono and stereo; GSM 6.10 has one channel by definition.
std::vector<SoundKind> everyKind() {
    std::vector<SoundKind> kinds;
    for (const Codec& codec : {Codec{"Pcm8", SF_FORMAT_PCM_U8, 2}, Codec{"Pcm16", SF_FORMAT_PCM_16, 2},
                               Codec{"ALaw", SF_FORMAT_ALAW, 2}, Codec{"MuLaw", SF_FORMAT_ULAW, 2},
                               Codec{"Gsm610", SF_FORMAT_GSM610, 1}, Codec{"MsAdpcm", SF_FORMAT_MS_ADPCM, 2},
                               Codec{"ImaAdpcm", SF_FORMAT_IMA_ADPCM, 2}})
        for (const int rate : {8000, 11025, 22050, 48000})
            for (int channels = 1; channels <= codec.maximumChannels; ++channels)
                kinds.push_back({codec.name + std::to_string(rate) + (channels == 1 ? "Mono" : "Stereo"),
                                 codec.format, rate, channels});
    return kinds;
}

class Codecs : public ::testing::TestWithParam<SoundKind> {};

TEST_P(Codecs, AreDecodedExactlyAsLongAsTheyWereRecorded) {
    const SoundKind& kind = GetParam();
    const auto samples = decodeMessage(fileOf(kind, 1.234), "m.wav");
    EXPECT_EQ(samples.rate, static_cast<std::uint32_t>(kind.rate));
    EXPECT_EQ(samples.channels, static_cast<std::uint32_t>(kind.channels));
    EXPECT_NEAR(samples.seconds(), 1.234, 0.02);
    EXPECT_GT(likenessOf(samples, soundOf(kind.rate, kind.channels, 1.234)), 0.95);
}

INSTANTIATE_TEST_SUITE_P(Messages, Codecs, ::testing::ValuesIn(everyKind()),
                         [](const auto& tested) { return tested.param.name; });

TEST(MessageDecoder, BelievesNoSizeThatCannotBe) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    for (const std::uint32_t size : {0U, 0xFFFFFFFFU, 0x7FFFFFFFU}) {
        auto file = pcm();
        setNumber(file, 4, size);
        setNumber(file, 40, size);
        EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values) << size;
    }
}

TEST(MessageDecoder, TakesSoundForSoundThoughItBeginsLikeAChunk) {
    auto file = pcm();
    const auto letters = textBytes("LIST\x7f\x7f\x7f\x7f");
    std::ranges::copy(letters, file.begin() + kPcmData);
    setNumber(file, 40, 0);
    EXPECT_EQ(decodeMessage(file, "m.wav").frames(), 1600U);
}

TEST(MessageDecoder, MendsSizesOfCompressedSoundToo) {
    for (const int format : {SF_FORMAT_GSM610, SF_FORMAT_IMA_ADPCM, SF_FORMAT_MS_ADPCM}) {
        auto file = fileOf({"compressed", format, 8000, 1}, 1);
        const auto whole = decodeMessage(file, "m.wav");
        setNumber(file, placeOf("data", file) + 4, 0);
        EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
    }
}

TEST(MessageDecoder, PlaysWhatIsThereOfATruncatedFile) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    auto file = pcm();
    file.resize(kPcmData + 1001);
    auto samples = decodeMessage(file, "m.wav");
    EXPECT_EQ(samples.frames(), 500U);
    EXPECT_TRUE(std::equal(samples.values.begin(), samples.values.end(), whole.values.begin()));
}

TEST(MessageDecoder, PlaysThePartOfABlockThatWasWritten) {
    auto file = fileOf({"gsm", SF_FORMAT_GSM610, 8000, 1}, 1);
    file.resize(60 + 10 * 65 + 33);
    EXPECT_EQ(decodeMessage(file, "m.wav").frames(), 10U * 320 + 162);
}

TEST(MessageDecoder, SurvivesTruncationAtEveryByte) {
    for (const int format : {SF_FORMAT_PCM_16, SF_FORMAT_GSM610, SF_FORMAT_MS_ADPCM, SF_FORMAT_IMA_ADPCM}) {
        const auto file = fileOf({"cut", format, 8000, 1}, 0.1);
        for (std::size_t length = 0; length < file.size(); ++length) {
            const Bytes cut(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length));
            const auto failure = failureOf(cut);
            if (!failure.empty()) {
                EXPECT_EQ(failure.substr(0, failure.find(':')), std::to_string(basic::kMediaBadFormat))
                    << failure;
            }
        }
    }
}

TEST(MessageDecoder, FindsTheSoundBehindOtherChunks) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    Bytes list = textBytes("LIST");
    appendLittleEndian(list, 2001, 4);
    list.resize(8 + 2001 + 1);
    auto file = pcm();
    insert(file, 36, list);
    insert(file, 12, list);
    EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
}

TEST(MessageDecoder, FindsTheSoundBehindAChunkWithoutItsFillingByte) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    Bytes junk = textBytes("JUNK");
    appendLittleEndian(junk, 3, 4);
    junk.resize(8 + 3);
    auto file = pcm();
    insert(file, 36, junk);
    EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
}

TEST(MessageDecoder, LeavesOutWhatFollowsTheSound) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    auto file = pcm();
    insert(file, file.size(), textBytes("LIST\x04"));
    file.resize(file.size() + 3);
    insert(file, file.size(), textBytes("INFO"));
    EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
}

TEST(MessageDecoder, TrimsTheFillingOfTheLastBlock) {
    auto file = fileOf({"gsm", SF_FORMAT_GSM610, 8000, 1}, 1);
    const std::size_t fact = placeOf("fact", file);
    setNumber(file, fact + 8, 7777);
    EXPECT_EQ(decodeMessage(file, "m.wav").frames(), 7777U);
}

TEST(MessageDecoder, IgnoresACountWrittenBeforeTheSoundWas) {
    auto file = fileOf({"gsm", SF_FORMAT_GSM610, 8000, 1}, 1);
    const std::size_t fact = placeOf("fact", file);
    for (const std::uint32_t count : {0U, 320U, 8000U - 320U, 0xFFFFFFFFU}) {
        setNumber(file, fact + 8, count);
        EXPECT_EQ(decodeMessage(file, "m.wav").frames(), 8000U) << count;
    }
}

TEST(MessageDecoder, WorksOutTheByteRateAndBlockSizeItself) {
    const auto whole = decodeMessage(pcm(), "m.wav");
    auto file = pcm();
    setNumber(file, 28, 0);
    setNumber(file, 32, 0, 2);
    EXPECT_EQ(decodeMessage(file, "m.wav").values, whole.values);
}

TEST(MessageDecoder, SaysThatAFileIsEmptyOrHoldsNoSound) {
    EXPECT_EQ(failureOf({}), badFormat("the file is empty."));
    auto file = pcm();
    file.resize(kPcmData);
    EXPECT_EQ(failureOf(file), badFormat("the file holds no sound yet."));
    setNumber(file, 40, 0);
    EXPECT_EQ(failureOf(file), badFormat("the file holds no sound yet."));
    file.resize(36);
    EXPECT_EQ(failureOf(file), badFormat("the file holds no sound (no data chunk)."));
    file.resize(11);
    EXPECT_EQ(failureOf(file), badFormat("the file is cut off in its header."));
}

TEST(MessageDecoder, NamesAWebPage) {
    EXPECT_EQ(failureOf(textBytes("\n<!DOCTYPE html><html><body>Not found</body></html>")),
              badFormat("this is a web page (HTML), not a sound file."));
}

TEST(MessageDecoder, RefusesWhatIsNoWavFile) {
    EXPECT_EQ(failureOf(textBytes("ID3\x03 something else entirely")), badFormat("this is not a WAV file."));
    EXPECT_EQ(failureOf(textBytes("RIFF\x04\x04\x04\x04"
                                  "AVI LIST")),
              badFormat("this is not a WAV file."));
}

TEST(MessageDecoder, RefusesAFormatThatCannotBe) {
    auto file = pcm();
    setNumber(file, 22, 0, 2);
    EXPECT_EQ(failureOf(file), badFormat("the format chunk states no channel or no sampling rate."));
    file = fileOf({"ima", SF_FORMAT_IMA_ADPCM, 8000, 1}, 0.2);
    setNumber(file, 32, 4, 2);
    EXPECT_EQ(failureOf(file), badFormat("the format chunk states blocks that hold no sound."));
}

TEST(MessageDecoder, RefusesGsmOfTwoChannels) {
    auto file = fileOf({"gsm", SF_FORMAT_GSM610, 8000, 1}, 0.2);
    setNumber(file, 22, 2, 2);
    EXPECT_EQ(failureOf(file), badFormat("the format chunk states GSM 6.10 of more than one channel."));
}

TEST(MessageDecoder, NamesACodecThatNobodyDecodes) {
    auto file = pcm();
    setNumber(file, 20, 0x0161, 2);
    EXPECT_EQ(failureOf(file), std::to_string(basic::kMediaUnsupported) +
                                   ": m.wav: the sound's format (0x0161, 16 bits) cannot be decoded.");
}

} // namespace
} // namespace mediagraph::testing
