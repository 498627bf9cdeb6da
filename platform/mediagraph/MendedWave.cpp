// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/MendedWave.h"

#include "platform/mediagraph/FormatChunk.h"
#include "platform/mediagraph/LittleEndian.h"

#include <algorithm>

namespace mediagraph {
namespace {

void appendTag(std::vector<std::byte>& bytes, std::string_view tag) {
    for (const char letter : tag)
        bytes.push_back(static_cast<std::byte>(letter));
}

} // namespace

MendedWave::MendedWave(const WaveLayout& layout, std::string_view name)
    : m_sound(layout.data), m_paddedSize(layout.data.size()) {
    const FormatChunk format = mendedFormat(layout, name);
    if (format.blockAlign != 0)
        countFrames(layout, format.blockAlign, format.framesInBlock);
    writeHeader(format.bytes);
}

// The count of the fact chunk says where in the last block the sound ends. One that is off by more than a
// block was written before the sound was.
void MendedWave::countFrames(const WaveLayout& layout, std::size_t blockAlign, std::size_t framesInBlock) {
    const std::size_t whole = m_sound.size() / blockAlign;
    const std::size_t cut = m_sound.size() % blockAlign;
    std::size_t frames = whole * framesInBlock + cut * framesInBlock / blockAlign;
    const std::size_t stated = layout.factSamples.value_or(0);
    if (stated <= frames && frames - stated < framesInBlock)
        frames = stated;
    m_expectedFrames = frames;
    m_paddedSize = (whole + (cut == 0 ? 0 : 1)) * blockAlign;
}

void MendedWave::writeHeader(std::span<const std::byte> formatChunk) {
    constexpr std::size_t kHeads = 4 + 8 + 8; // form type, heads of the two chunks
    const auto formatSize = static_cast<std::uint32_t>(formatChunk.size());
    const auto soundSize = static_cast<std::uint32_t>(m_paddedSize);
    appendTag(m_header, "RIFF");
    appendLittleEndian(m_header, static_cast<std::uint32_t>(kHeads + formatSize % 2) + formatSize + soundSize,
                       4);
    appendTag(m_header, "WAVEfmt ");
    appendLittleEndian(m_header, formatSize, 4);
    m_header.insert(m_header.end(), formatChunk.begin(), formatChunk.end());
    if (formatSize % 2 != 0)
        m_header.push_back(std::byte{0});
    appendTag(m_header, "data");
    appendLittleEndian(m_header, soundSize, 4);
}

std::byte MendedWave::at(std::size_t offset) const {
    if (offset < m_header.size())
        return m_header[offset];
    offset -= m_header.size();
    return offset < m_sound.size() ? m_sound[offset] : std::byte{0};
}

std::size_t MendedWave::read(std::size_t offset, std::span<std::byte> into) const {
    const std::size_t there = offset < size() ? std::min(into.size(), size() - offset) : 0;
    for (std::size_t i = 0; i < there; ++i)
        into[i] = at(offset + i);
    return there;
}

} // namespace mediagraph
