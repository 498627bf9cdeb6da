// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/FormatChunk.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/LittleEndian.h"

#include <array>
#include <string>

namespace mediagraph {
namespace {

constexpr std::size_t kGsmBlock = 65;
constexpr std::size_t kGsmFrames = 320;

// The predictor pairs that every MS ADPCM file carries.
constexpr std::array<std::int16_t, 14> kMsCoefficients{256, 0,   512, -256, 0,    0,   192,
                                                       64,  240, 0,   460,  -208, 392, -232};

[[noreturn]] void refuse(std::string_view name, const char* why) {
    throw basic::RuntimeError(basic::kMediaBadFormat, std::string(name).append(": ").append(why));
}

struct Blocks {
    std::uint16_t bits;
    std::size_t align;
    std::size_t frames;
};

// A block of ADPCM begins with `head` bytes a channel, which hold `inHead` frames; the rest is half a byte a
// frame.
Blocks adpcmBlocks(const WaveFormat& format, std::size_t head, std::size_t inHead, std::string_view name) {
    const std::size_t heads = head * format.channels;
    if (format.blockAlign <= heads)
        refuse(name, "the format chunk states blocks that hold no sound.");
    return {4, format.blockAlign, (format.blockAlign - heads) * 2 / format.channels + inHead};
}

Blocks plainBlocks(const WaveFormat& format, std::uint16_t bits) {
    return {bits, static_cast<std::size_t>(format.channels) * ((bits + 7U) / 8U), 1};
}

Blocks blocksOf(const WaveFormat& format, std::string_view name) {
    switch (format.codec) {
    case WaveCodec::ALaw:
    case WaveCodec::MuLaw:
        return plainBlocks(format, 8);
    case WaveCodec::Pcm:
    case WaveCodec::Float:
        if (format.bits == 0)
            refuse(name, "the format chunk states samples of 0 bits.");
        return plainBlocks(format, format.bits);
    case WaveCodec::ImaAdpcm:
        return adpcmBlocks(format, 4, 1, name);
    case WaveCodec::MsAdpcm:
        return adpcmBlocks(format, 7, 2, name);
    case WaveCodec::Gsm610:
        if (format.channels != 1)
            refuse(name, "the format chunk states GSM 6.10 of more than one channel.");
        return {0, kGsmBlock, kGsmFrames};
    default:
        return {format.bits, 0, 0};
    }
}

bool isAdpcm(WaveCodec codec) {
    return codec == WaveCodec::ImaAdpcm || codec == WaveCodec::MsAdpcm;
}

void appendExtension(std::vector<std::byte>& bytes, WaveCodec codec, std::size_t framesInBlock) {
    const bool isMs = codec == WaveCodec::MsAdpcm;
    constexpr std::uint32_t kMsExtension = 4 + 2 * kMsCoefficients.size();
    appendLittleEndian(bytes, isMs ? kMsExtension : 2U, 2);
    appendLittleEndian(bytes, static_cast<std::uint32_t>(framesInBlock), 2);
    if (!isMs)
        return;
    appendLittleEndian(bytes, kMsCoefficients.size() / 2, 2);
    for (const auto coefficient : kMsCoefficients)
        appendLittleEndian(bytes, static_cast<std::uint16_t>(coefficient), 2);
}

} // namespace

FormatChunk mendedFormat(const WaveLayout& layout, std::string_view name) {
    const WaveFormat& format = layout.format;
    if (format.channels == 0 || format.rate == 0)
        refuse(name, "the format chunk states no channel or no sampling rate.");
    const Blocks blocks = blocksOf(format, name);
    FormatChunk chunk{{}, blocks.align, blocks.frames};
    if (blocks.align == 0) {
        chunk.bytes.assign(layout.formatChunk.begin(), layout.formatChunk.end());
        return chunk;
    }
    const auto byteRate = static_cast<std::uint64_t>(format.rate) * blocks.align / blocks.frames;
    appendLittleEndian(chunk.bytes, static_cast<std::uint16_t>(format.codec), 2);
    appendLittleEndian(chunk.bytes, format.channels, 2);
    appendLittleEndian(chunk.bytes, format.rate, 4);
    appendLittleEndian(chunk.bytes, static_cast<std::uint32_t>(byteRate), 4);
    appendLittleEndian(chunk.bytes, static_cast<std::uint32_t>(blocks.align), 2);
    appendLittleEndian(chunk.bytes, blocks.bits, 2);
    if (isAdpcm(format.codec) || format.codec == WaveCodec::Gsm610)
        appendExtension(chunk.bytes, format.codec, blocks.frames);
    return chunk;
}

} // namespace mediagraph
