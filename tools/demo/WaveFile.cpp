// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/demo/WaveFile.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/LocalFile.h"
#include "tools/demo/SpeechSynthesiser.h"

#include <cerrno>
#include <cstdio>
#include <string_view>

namespace demo {
namespace {

class WaveBytes {
public:
    void tag(std::string_view text) {
        const auto bytes = std::as_bytes(std::span(text));
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    }
    void number(std::uint32_t value, unsigned size) {
        for (unsigned i = 0; i < size; ++i)
            m_bytes.push_back(static_cast<std::byte>(value >> 8 * i));
    }
    std::vector<std::byte> take() { return std::move(m_bytes); }

private:
    std::vector<std::byte> m_bytes;
};

// 8-bit samples are unsigned, with silence in the middle.
std::uint32_t stored(std::int16_t sample, SampleSize size) {
    return size == SampleSize::Bits16 ? static_cast<std::uint16_t>(sample)
                                      : static_cast<std::uint32_t>((sample >> 8) + 128);
}

} // namespace

std::vector<std::byte> encodeWave(std::span<const std::int16_t> samples, SampleSize size) {
    const unsigned bits = static_cast<unsigned>(size);
    const unsigned bytes = bits / 8;
    const auto dataSize = static_cast<std::uint32_t>(samples.size() * bytes);
    WaveBytes wave;
    wave.tag("RIFF");
    wave.number(36 + dataSize + dataSize % 2, 4);
    wave.tag("WAVEfmt ");
    wave.number(16, 4);
    wave.number(1, 2); // uncompressed
    wave.number(1, 2); // mono
    wave.number(kSampleRate, 4);
    wave.number(kSampleRate * bytes, 4);
    wave.number(bytes, 2);
    wave.number(bits, 2);
    wave.tag("data");
    wave.number(dataSize, 4);
    for (const std::int16_t sample : samples)
        wave.number(stored(sample, size), bytes);
    if (dataSize % 2 != 0)
        wave.number(0, 1); // chunks have an even length
    return wave.take();
}

void writeFile(const std::string& path, std::span<const std::byte> bytes) {
    const std::string passing = path + ".part";
    std::remove(passing.c_str());
    share::LocalFile::open(passing, share::OpenMode::Create)->write(0, bytes);
    if (std::rename(passing.c_str(), path.c_str()) != 0)
        throw basic::errorFromErrno(errno, "rename", path);
}

} // namespace demo
