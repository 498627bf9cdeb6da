// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where things lie in a WAV file, found without believing its sizes: recorders leave 0, FFFFFFFF or 7FFFFFFF
// behind when they were interrupted or are still writing, and put other chunks before the sound. Points into
// the bytes it was read from. Format: a RIFF file of form WAVE; docs/wav-files.md.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace mediagraph {

// The format tags that are mended by name; others go to the decoder as they are.
enum class WaveCodec : std::uint16_t {
    Pcm = 0x0001,
    MsAdpcm = 0x0002,
    Float = 0x0003,
    ALaw = 0x0006,
    MuLaw = 0x0007,
    ImaAdpcm = 0x0011,
    Gsm610 = 0x0031,
    Extensible = 0xFFFE,
};

struct WaveFormat {
    WaveCodec codec = WaveCodec::Pcm; // any 16-bit number; what an extensible format stands for
    std::uint16_t channels = 0;
    std::uint32_t rate = 0;
    std::uint16_t blockAlign = 0;
    std::uint16_t bits = 0;
};

struct WaveLayout {
    WaveFormat format;
    std::span<const std::byte> formatChunk; // as it is in the file
    std::optional<std::uint32_t> factSamples;
    std::span<const std::byte> data; // never beyond the end of the file
};

// Error kMediaBadFormat for everything that is no WAV file; the description names the file and says what it
// looks like instead.
WaveLayout readWaveLayout(std::span<const std::byte> file, std::string_view name);

} // namespace mediagraph
