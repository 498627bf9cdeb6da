// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The running of a filter graph and the filters in it. User-interface thread. None of the calls waits for the
// sound server: they say what is wanted, and it happens soon after. What then fails is told by the next read
// of IMediaPosition and by IMediaEvent.

#include "platform/mediagraph/IFilterInfo.h"
#include "platform/mediagraph/IRegFilterInfo.h"

#include <memory>

namespace mediagraph {

class IMediaControl {
public:
    IMediaControl() = default;
    IMediaControl(const IMediaControl&) = delete;
    IMediaControl& operator=(const IMediaControl&) = delete;
    virtual ~IMediaControl() = default;

    // Plays from the current position on. A graph without a connection plays nothing and ends never.
    virtual void Run() = 0;
    // Silence; the position stays, and Run() goes on there. The output device is let go, as it is by Stop().
    virtual void Pause() = 0;
    // Silence; the position stays.
    virtual void Stop() = 0;

    // The filters now in the graph, in the order in which they were put in.
    virtual std::shared_ptr<const ItemCollection<IFilterInfo>> FilterCollection() const = 0;
    // kFileSourceName first, then one renderer for each output device, in the order of the device list.
    // When it is first counted or read it takes a bounded look at the sound server; without one there are
    // no renderers, and no error.
    virtual std::shared_ptr<const ItemCollection<IRegFilterInfo>> RegFilterCollection() = 0;
};

} // namespace mediagraph
