// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// PipeWire of the test's own, without its PulseAudio face: the server with two null sinks, "first" and
// "second", its session manager and the message bus that this one needs, in a folder of its own. From the
// construction on the process's environment leads to it.

#include "tests/platform/mediagraph/ChildProcess.h"
#include "tests/platform/mediagraph/Recording.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <memory>
#include <string>

namespace mediagraph::testing {

class PipeWireServer {
public:
    enum class Manager { Started, Off };
    explicit PipeWireServer(Manager manager = Manager::Started);

    // The session manager, which joins who plays with a sink. Returns when it works.
    void startManager();
    void kill() { m_server->end(9); }

    // Takes a sink away, as an unplugged device is.
    static void unplug(const std::string& sink);

    // What the sink plays from now on.
    std::unique_ptr<Recording> record(const std::string& sink);

private:
    share::testing::TemporaryFolder m_folder;
    int m_recordings = 0;
    std::unique_ptr<ChildProcess> m_bus;
    std::unique_ptr<ChildProcess> m_server;
    std::unique_ptr<ChildProcess> m_manager;
};

} // namespace mediagraph::testing
