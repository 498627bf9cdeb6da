// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where PipeWire listens. Only whether somebody does is asked here: the socket of a server that crashed
// stays. Any thread.

#include <string>

namespace mediagraph {

class PipeWireSocket {
public:
    explicit PipeWireSocket(std::string path) : m_path(std::move(path)) {}
    // The user's own.
    static PipeWireSocket ofUser();

    bool answers() const;

private:
    std::string m_path;
};

} // namespace mediagraph
