// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/WaveLayout.h"

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/LittleEndian.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

namespace mediagraph {
namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kChunkHead = 8;
constexpr std::size_t kFormHead = 12;
constexpr std::size_t kPlainFormat = 14;      // without the bits
constexpr std::size_t kExtensibleFormat = 40; // with the GUID, whose first two bytes are the real tag
constexpr std::size_t kExtensibleTag = 24;

[[noreturn]] void refuse(std::string_view name, const char* why) {
    throw basic::RuntimeError(basic::kMediaBadFormat, std::string(name).append(": ").append(why));
}

std::uint16_t shortAt(Bytes bytes, std::size_t at) {
    return static_cast<std::uint16_t>(littleEndianAt(bytes, at, 2));
}

std::string textAt(Bytes bytes, std::size_t at, std::size_t length) {
    const Bytes there = bytes.subspan(std::min(at, bytes.size()));
    std::string text(std::min(length, there.size()), '\0');
    std::memcpy(text.data(), there.data(), text.size());
    return text;
}

struct Chunk {
    std::string id;
    std::size_t stated = 0; // what the header says
    Bytes body;             // what is there of it

    bool isWhole() const { return stated == body.size(); }
    // Chunks begin at even offsets, but there are writers that leave the filling byte out; where it should
    // be one finds the next chunk's letter then, and never a 0.
    std::size_t next(Bytes file) const {
        const auto end = static_cast<std::size_t>(body.data() - file.data()) + body.size();
        const bool isFilled = body.size() % 2 == 1 && end < file.size() && file[end] == std::byte{0};
        return end + (isFilled ? 1 : 0);
    }
};

std::optional<Chunk> chunkAt(Bytes file, std::size_t at) {
    if (at > file.size() || file.size() - at < kChunkHead)
        return std::nullopt;
    Chunk chunk{textAt(file, at, 4), littleEndianAt(file, at + 4, 4), file.subspan(at + kChunkHead)};
    chunk.body = chunk.body.first(std::min(chunk.stated, chunk.body.size()));
    return chunk;
}

bool isPrintable(const std::string& id) {
    return std::ranges::all_of(id, [](char letter) { return letter >= ' ' && letter <= '~'; });
}

// Whether chunks, and nothing but chunks, lie from `at` to the end.
bool onlyChunksFollow(Bytes file, std::size_t at) {
    while (const auto chunk = chunkAt(file, at)) {
        if (!isPrintable(chunk->id) || !chunk->isWhole())
            return false;
        at = chunk->next(file);
    }
    return at >= file.size();
}

// A size of 0 with sound behind it was left by a recorder that never came back to write the size.
Bytes soundOf(const Chunk& chunk, Bytes file) {
    const auto begin = static_cast<std::size_t>(chunk.body.data() - file.data());
    if (chunk.stated == 0 && !onlyChunksFollow(file, begin))
        return file.subspan(begin);
    return chunk.body;
}

WaveFormat formatOf(Bytes chunk, std::string_view name) {
    if (chunk.size() < kPlainFormat)
        refuse(name, "the format chunk is cut off.");
    WaveFormat format{static_cast<WaveCodec>(shortAt(chunk, 0)), shortAt(chunk, 2),
                      littleEndianAt(chunk, 4, 4), shortAt(chunk, 12),
                      chunk.size() >= kPlainFormat + 2 ? shortAt(chunk, 14) : std::uint16_t{0}};
    if (format.codec == WaveCodec::Extensible && chunk.size() >= kExtensibleFormat)
        format.codec = static_cast<WaveCodec>(shortAt(chunk, kExtensibleTag));
    return format;
}

bool isWebPage(Bytes file) {
    std::string start = textAt(file, 0, 512);
    std::ranges::transform(start, start.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    constexpr std::array<std::string_view, 3> kMarks{"<!doctype", "<html", "<head"};
    return std::ranges::any_of(kMarks,
                               [&](std::string_view mark) { return start.find(mark) != std::string::npos; });
}

void expectWaveFile(Bytes file, std::string_view name) {
    if (file.empty())
        refuse(name, "the file is empty.");
    const bool isRiff = textAt(file, 0, 4) == "RIFF";
    if (!isRiff && isWebPage(file))
        refuse(name, "this is a web page (HTML), not a sound file.");
    if (isRiff && file.size() < kFormHead)
        refuse(name, "the file is cut off in its header.");
    if (!isRiff || textAt(file, 8, 4) != "WAVE")
        refuse(name, "this is not a WAV file.");
}

} // namespace

WaveLayout readWaveLayout(std::span<const std::byte> file, std::string_view name) {
    expectWaveFile(file, name);
    WaveLayout layout;
    std::size_t at = kFormHead;
    bool hasData = false;
    while (auto chunk = chunkAt(file, at)) {
        if (chunk->id == "fmt ") {
            layout.formatChunk = chunk->body;
        } else if (chunk->id == "fact" && chunk->body.size() >= 4) {
            layout.factSamples = littleEndianAt(chunk->body, 0, 4);
        } else if (chunk->id == "data" && !hasData) {
            chunk->body = soundOf(*chunk, file);
            layout.data = chunk->body;
            hasData = true;
        }
        at = chunk->next(file);
    }
    if (layout.formatChunk.empty())
        refuse(name, "the format chunk is missing.");
    layout.format = formatOf(layout.formatChunk, name);
    if (!hasData)
        refuse(name, "the file holds no sound (no data chunk).");
    return layout;
}

} // namespace mediagraph
