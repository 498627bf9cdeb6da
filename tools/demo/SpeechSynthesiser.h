// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Makes sound that has the rhythm and colour of speech and says nothing: voiced syllables with the resonances
// of vowels, pauses between words, a voice of its own for each seed. Good for trying a player without
// recording anybody. The same seed gives the same samples.

#include <cstdint>
#include <vector>

namespace demo {

inline constexpr unsigned kSampleRate = 8000; // that of telephony

// 16-bit mono samples for that many seconds.
std::vector<std::int16_t> synthesiseSpeech(unsigned seconds, std::uint32_t seed);

} // namespace demo
