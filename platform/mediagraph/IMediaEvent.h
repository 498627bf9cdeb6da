// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the running of a filter graph ended. User-interface thread.

#include <chrono>
#include <cstdint>

namespace mediagraph {

enum class EventCode : std::int32_t {
    Complete = 1,   // the device has played the last sample
    UserAbort = 2,  // the output device was removed: a quiet stop
    ErrorAbort = 3, // playing failed; IMediaPosition told why
};

class IMediaEvent {
public:
    IMediaEvent() = default;
    IMediaEvent(const IMediaEvent&) = delete;
    IMediaEvent& operator=(const IMediaEvent&) = delete;
    virtual ~IMediaEvent() = default;

    // Waits up to `timeout` for the running graph to end and answers how it ended, again and again until
    // Run(), Stop() or a new position. Error kMediaStillRunning when it did not end in that time, and at once
    // kMediaWrongState for a graph that is paused or stopped.
    virtual EventCode WaitForCompletion(std::chrono::milliseconds timeout) = 0;
};

} // namespace mediagraph
