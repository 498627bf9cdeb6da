// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One connection point of a filter in a graph. User-interface thread; errors are RuntimeErrors.

#include <cstdint>

namespace mediagraph {

enum class PinDirection : std::int32_t {
    Input = 0,
    Output = 1,
};

class IPinInfo {
public:
    IPinInfo() = default;
    IPinInfo(const IPinInfo&) = delete;
    IPinInfo& operator=(const IPinInfo&) = delete;
    virtual ~IPinInfo() = default;

    virtual PinDirection Direction() const = 0;
    // Connects this pin with `other` and puts in what the connection needs: the source's file is decoded
    // here. Error kMediaCannotConnect unless both are of one graph, one the output of a file source that
    // holds a file, the other a renderer's input, and nothing in the graph connected yet; kMediaWrongState
    // unless the graph is stopped. kMediaBadFormat for what is no sound file or holds no sample,
    // kMediaUnsupported for a codec that nobody here decodes; the description names the file and what was
    // found in it.
    virtual void Connect(IPinInfo& other) = 0;
};

} // namespace mediagraph
