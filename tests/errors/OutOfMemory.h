// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Makes one allocation of this thread fail, once: what runs out of memory afterwards has memory again.
//
//     const OutOfMemory next(0); // the next allocation throws std::bad_alloc

#include <cstddef>

namespace errors {

class OutOfMemory {
public:
    // So many allocations succeed before the one that fails.
    explicit OutOfMemory(std::size_t after);
    OutOfMemory(const OutOfMemory&) = delete;
    OutOfMemory& operator=(const OutOfMemory&) = delete;
    // What has not failed by then does not fail any more.
    ~OutOfMemory();

    static bool hasFailed();
};

} // namespace errors
