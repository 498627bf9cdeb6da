// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A WAV file with the sound of another and a header in which every size is right: made for the decoder, which
// believes sizes. The sound ends with a whole block; what a cut-off last block lacks reads as zero, and
// expectedFrames() says how many frames are really there. Bytes are read out of it by their offset; nothing
// of the sound is copied, so the file's bytes must outlive it.

#include "platform/mediagraph/WaveLayout.h"

#include <string_view>
#include <vector>

namespace mediagraph {

class MendedWave {
public:
    // Error kMediaBadFormat for a format in which no block can be told from the next; `name` is for its text.
    MendedWave(const WaveLayout& layout, std::string_view name);

    std::size_t size() const noexcept { return m_header.size() + m_paddedSize; }
    // Fills `into` from `offset`; answers how many bytes were there.
    std::size_t read(std::size_t offset, std::span<std::byte> into) const;

    // Frames of the sound after decoding; nothing for a codec whose blocks are not known here.
    std::optional<std::size_t> expectedFrames() const noexcept { return m_expectedFrames; }

private:
    void countFrames(const WaveLayout& layout, std::size_t blockAlign, std::size_t framesInBlock);
    void writeHeader(std::span<const std::byte> formatChunk);
    std::byte at(std::size_t offset) const;

    std::vector<std::byte> m_header;
    std::span<const std::byte> m_sound;
    std::size_t m_paddedSize = 0;
    std::optional<std::size_t> m_expectedFrames;
};

} // namespace mediagraph
