// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How much this process has asked the kernel to read and write so far, whichever library did it. From
// /proc/self/io, which counts bytes and calls of files, pipes and sockets alike; reading it costs two calls
// of its own, which difference() takes off. Linux only.

#include <cstdint>

namespace bench {

struct IoCount {
    std::int64_t bytesRead = 0;
    std::int64_t readCalls = 0;
    std::int64_t bytesWritten = 0;
    std::int64_t writeCalls = 0;
};

IoCount readIoCount();

// What `work` did between two looks.
template <typename Work>
IoCount ioOf(Work&& work);

IoCount difference(const IoCount& before, const IoCount& after, const IoCount& ofLooking);

template <typename Work>
IoCount ioOf(Work&& work) {
    const IoCount nothing = readIoCount();
    const IoCount before = readIoCount();
    work();
    const IoCount after = readIoCount();
    return difference(before, after, difference(nothing, before, {}));
}

} // namespace bench
