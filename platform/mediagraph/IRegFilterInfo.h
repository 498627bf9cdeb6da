// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A kind of filter that the workstation offers to a graph. It can be held longer than the graph; Filter() is
// then error 91. User-interface thread.

#include "platform/mediagraph/IFilterInfo.h"

#include <memory>
#include <string>

namespace mediagraph {

// The name of the one registered filter that reads files.
inline constexpr const char* kFileSourceName = "File Source (Async.)";

class IRegFilterInfo {
public:
    IRegFilterInfo() = default;
    IRegFilterInfo(const IRegFilterInfo&) = delete;
    IRegFilterInfo& operator=(const IRegFilterInfo&) = delete;
    virtual ~IRegFilterInfo() = default;

    // kFileSourceName, or exactly the name of an output device as waveOutGetDevCapsA answers it.
    virtual std::string Name() const = 0;
    // Puts a new filter of this kind into the graph, each time it is called, and answers it.
    virtual std::shared_ptr<IFilterInfo> Filter() = 0;
};

} // namespace mediagraph
