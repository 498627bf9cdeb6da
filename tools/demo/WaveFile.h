// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A message's sound file: RIFF/WAVE, uncompressed, mono, at the rate of telephony.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace demo {

enum class SampleSize : std::uint16_t { Bits8 = 8, Bits16 = 16 };

std::vector<std::byte> encodeWave(std::span<const std::int16_t> samples, SampleSize size);

// Writes a new file under a passing name and renames it, so that nobody meets half a message.
// RuntimeError of the platform when that fails.
void writeFile(const std::string& path, std::span<const std::byte> bytes);

} // namespace demo
