// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of messages over any bytes, the decoder behind it included: it answers samples that can be
// played or a RuntimeError of the media graph.

#include "platform/basic/RuntimeError.h"
#include "platform/mediagraph/MessageDecoder.h"

#include <cstdint>
#include <cstdlib>
#include <span>

namespace {

bool isOfTheGraph(std::int32_t number) {
    return number == basic::kMediaBadFormat || number == basic::kMediaUnsupported ||
           number == basic::kOutOfMemory;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto samples = mediagraph::decodeMessage(std::as_bytes(std::span(data, size)), "input");
        if (samples.frames() == 0 || samples.values.size() % samples.channels != 0 || samples.seconds() <= 0)
            std::abort();
    } catch (const basic::RuntimeError& error) {
        if (!isOfTheGraph(error.number()))
            std::abort();
    }
    return 0;
}
