// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where a filter graph is in its file, in seconds from the beginning. User-interface thread; no call waits
// for the sound server. A graph that failed tells so once, by an error of the next read of CurrentPosition()
// (kMediaNoHardware without a sound server, kMediaTimeout when the sound did not start within five seconds);
// reads after that answer the last known position.

namespace mediagraph {

class IMediaPosition {
public:
    IMediaPosition() = default;
    IMediaPosition(const IMediaPosition&) = delete;
    IMediaPosition& operator=(const IMediaPosition&) = delete;
    virtual ~IMediaPosition() = default;

    // Of the connected file: its samples divided by its rate. 0 without a connection.
    virtual double Duration() = 0;
    // The last known position, never beyond Duration(); Duration() itself once the end was heard; a position
    // that was set at once. 0 without a connection.
    virtual double CurrentPosition() = 0;
    // Goes there in every state and keeps the state. Before the beginning means the beginning; at or beyond
    // the end means the end, which a running graph then reports as completion; not a number is error 5.
    // Without a connection it does nothing.
    virtual void SetCurrentPosition(double seconds) = 0;
};

} // namespace mediagraph
