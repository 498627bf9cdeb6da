// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A filter in a graph. It can be held longer than the graph; what needs the graph is then error 91.
// User-interface thread.

#include "platform/mediagraph/IPinInfo.h"
#include "platform/mediagraph/ItemCollection.h"

#include <string>
#include <string_view>

namespace mediagraph {

class IFilterInfo {
public:
    IFilterInfo() = default;
    IFilterInfo(const IFilterInfo&) = delete;
    IFilterInfo& operator=(const IFilterInfo&) = delete;
    virtual ~IFilterInfo() = default;

    // The name in its graph: that of the registered filter, with a number after it from the second such
    // filter of one graph on.
    virtual std::string Name() const = 0;
    // Never empty: a file source has one output pin, a renderer one input pin.
    virtual ItemCollection<IPinInfo> Pins() const = 0;
    virtual bool IsFileSource() const = 0;
    // Reads the whole file (a UNC name in UTF-8) into memory and closes it before it returns. The reading
    // itself happens on another thread, in bounded time, while this thread waits as Waiting says. Errors are
    // those of the share (53 not found, 70, 75, 76), 57 when the server does not answer in time, 7 for a file
    // too large to hold; after one the source holds no file. Error 438 for a filter that is no file source.
    virtual void SetFilename(std::string_view fileName) = 0;
};

} // namespace mediagraph
