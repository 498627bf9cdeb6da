// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The format chunk as the decoder wants it for the codecs of telephony: block sizes, byte rate and the
// codec's own fields worked out anew from what a recorder can hardly get wrong. Format: docs/wav-files.md.

#include "platform/mediagraph/WaveLayout.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace mediagraph {

struct FormatChunk {
    std::vector<std::byte> bytes;
    std::size_t blockAlign = 0; // bytes of a block; 0 when the codec's blocks are not known here
    std::size_t framesInBlock = 0;
};

// Error kMediaBadFormat for a format that cannot be: no channel, no rate, blocks of no size.
FormatChunk mendedFormat(const WaveLayout& layout, std::string_view name);

} // namespace mediagraph
