// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Makes samples out of the bytes of a message. Every codec that libsndfile knows in a WAV file is decoded:
// PCM, A-law, µ-law, GSM 6.10, MS and IMA ADPCM among them. Decoded whole, because seeking in compressed
// sound is exact only so; ten minutes are under 10 MB. Pure work on memory, on any thread.

#include "platform/mediagraph/Samples.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace mediagraph {

// Longer messages than this many bytes of samples are refused with error 7.
inline constexpr std::size_t kMaximumSampleBytes = std::size_t{1} << 29U;

// Trimmed to what was recorded, without the filling of a last block. Errors: kMediaBadFormat for what is no
// WAV file or holds no sample, kMediaUnsupported for a codec that is not known; the description names `name`
// and what is wrong with it.
Samples decodeMessage(std::span<const std::byte> file, std::string_view name);

} // namespace mediagraph
