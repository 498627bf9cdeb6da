// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/MessageDecoder.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/MendedWave.h"
#include "platform/mediagraph/WaveLayout.h"

#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace mediagraph {
namespace {

constexpr int kMaximumChannels = 8;
constexpr int kMinimumRate = 1000;
constexpr int kMaximumRate = 384'000;
constexpr std::size_t kFramesAtOnce = 16'384;

struct Reading {
    const MendedWave& wave;
    std::size_t at = 0;
};

Reading& reading(void* user) {
    return *static_cast<Reading*>(user);
}

sf_count_t lengthOf(void* user) {
    return static_cast<sf_count_t>(reading(user).wave.size());
}

sf_count_t tell(void* user) {
    return static_cast<sf_count_t>(reading(user).at);
}

sf_count_t seek(sf_count_t offset, int whence, void* user) {
    if (whence == SEEK_CUR)
        offset += tell(user);
    else if (whence == SEEK_END)
        offset += lengthOf(user);
    if (offset < 0)
        return -1;
    reading(user).at = static_cast<std::size_t>(offset);
    return offset;
}

sf_count_t read(void* into, sf_count_t count, void* user) {
    Reading& from = reading(user);
    if (count <= 0)
        return 0;
    const auto length =
        from.wave.read(from.at, {static_cast<std::byte*>(into), static_cast<std::size_t>(count)});
    from.at += length;
    return static_cast<sf_count_t>(length);
}

struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using Decoder = std::unique_ptr<SNDFILE, Close>;

[[noreturn]] void refuse(std::int32_t number, std::string_view name, const std::string& why) {
    throw basic::RuntimeError(number, std::string(name).append(": ").append(why));
}

[[noreturn]] void refuseCodec(std::string_view name, const WaveFormat& format) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "the sound's format (0x%04X, %u bits) cannot be decoded.",
                  static_cast<unsigned>(format.codec), static_cast<unsigned>(format.bits));
    refuse(basic::kMediaUnsupported, name, text.data());
}

void expectPlayable(const SF_INFO& info, std::string_view name) {
    if (info.channels > kMaximumChannels)
        refuse(basic::kMediaUnsupported, name,
               std::to_string(info.channels).append(" channels cannot be played."));
    if (info.samplerate < kMinimumRate || info.samplerate > kMaximumRate)
        refuse(basic::kMediaUnsupported, name,
               std::to_string(info.samplerate).append(" samples a second cannot be played."));
}

Decoder opened(Reading& from, SF_INFO& info, const WaveFormat& format, std::string_view name) {
    SF_VIRTUAL_IO io{lengthOf, seek, read, nullptr, tell};
    Decoder decoder(sf_open_virtual(&io, SFM_READ, &info, &from));
    if (!decoder)
        refuseCodec(name, format);
    expectPlayable(info, name);
    // Without these, floating-point sound comes out as -1, 0 and 1, and what is too loud turns over.
    sf_command(decoder.get(), SFC_SET_SCALE_FLOAT_INT_READ, nullptr, SF_TRUE);
    sf_command(decoder.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
    return decoder;
}

void readAll(SNDFILE* decoder, Samples& samples, std::string_view name) {
    std::size_t filled = 0;
    sf_count_t got = 0;
    do {
        samples.values.resize(filled + kFramesAtOnce * samples.channels);
        got = sf_readf_short(decoder, samples.values.data() + filled, kFramesAtOnce);
        filled += static_cast<std::size_t>(std::max<sf_count_t>(got, 0)) * samples.channels;
        if (filled * sizeof(std::int16_t) > kMaximumSampleBytes)
            refuse(basic::kOutOfMemory, name, "the message is too long to be held in memory.");
    } while (got > 0);
    samples.values.resize(filled);
}

void trim(Samples& samples, std::optional<std::size_t> frames) {
    if (frames && *frames < samples.frames())
        samples.values.resize(*frames * samples.channels);
    samples.values.shrink_to_fit();
}

} // namespace

Samples decodeMessage(std::span<const std::byte> file, std::string_view name) {
    const WaveLayout layout = readWaveLayout(file, name);
    if (layout.data.empty())
        refuse(basic::kMediaBadFormat, name, "the file holds no sound yet.");
    const MendedWave wave(layout, name);
    Reading from{wave};
    SF_INFO info{};
    const Decoder decoder = opened(from, info, layout.format, name);
    Samples samples{
        static_cast<std::uint32_t>(info.samplerate), static_cast<std::uint32_t>(info.channels), {}};
    readAll(decoder.get(), samples, name);
    trim(samples, wave.expectedFrames());
    if (samples.values.empty())
        refuse(basic::kMediaBadFormat, name, "the file holds no sound yet.");
    return samples;
}

} // namespace mediagraph
