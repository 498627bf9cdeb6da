// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Message files as bytes that a test changes before they are decoded, and how decoding them fails.

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/LittleEndian.h"
#include "platform/mediagraph/MessageDecoder.h"
#include "tests/platform/mediagraph/TestSounds.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace mediagraph::testing {

using Bytes = std::vector<std::byte>;

inline constexpr std::size_t kPcmData = 44; // where the sound of a plain PCM file begins

inline Bytes fileOf(const SoundKind& kind, double seconds) {
    const share::testing::TemporaryFolder folder;
    makeSoundFile(folder.path("message.wav"), kind, seconds);
    return bytesOf(folder.path("message.wav"));
}

inline Bytes pcm(double seconds = 0.2) {
    return fileOf({"pcm16", SF_FORMAT_PCM_16, 8000, 1}, seconds);
}

inline void setNumber(Bytes& bytes, std::size_t at, std::uint32_t number, std::size_t width = 4) {
    Bytes text;
    appendLittleEndian(text, number, width);
    std::ranges::copy(text, bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

inline Bytes textBytes(std::string_view text) {
    const auto* begin = reinterpret_cast<const std::byte*>(text.data());
    return {begin, begin + text.size()};
}

inline void insert(Bytes& bytes, std::size_t at, const Bytes& what) {
    bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), what.begin(), what.end());
}

// Errors of decodeMessage as "number: text", empty without one.
inline std::string failureOf(const Bytes& file) {
    try {
        decodeMessage(file, "m.wav");
    } catch (const basic::RuntimeError& error) {
        return std::to_string(error.number()) + ": " + error.description();
    }
    return {};
}

inline std::string badFormat(std::string_view text) {
    return std::to_string(basic::kMediaBadFormat).append(": m.wav: ").append(text);
}

} // namespace mediagraph::testing
