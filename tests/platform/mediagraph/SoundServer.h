// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A PulseAudio server of the test's own with two null sinks, "first" (the default) and "second", in a folder
// of its own; the process's environment leads to it and to nothing of the user's. `norewinds` keeps a null
// sink from delaying its first sound by seconds.

#include "tests/platform/mediagraph/ChildProcess.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace mediagraph::testing {

class SoundServer {
public:
    // Points the environment at the server, and starts it unless told otherwise.
    enum class Begin { Started, Off };
    explicit SoundServer(Begin begin = Begin::Started);

    // Returns when it answers.
    void start();
    void kill(); // at once, as in a crash
    void freeze() { m_process->send(19); }
    void thaw() { m_process->send(18); }
    // As one that gets no processor for so long.
    void standStill(std::chrono::milliseconds time);

    // pactl with these words; what it printed.
    std::string control(const std::vector<std::string>& words) const;
    // Takes a sink away, as an unplugged device is.
    void unplug(const std::string& sink) const;
    std::size_t streamCount() const;

private:
    std::string socket() const { return m_folder.path("native"); }

    share::testing::TemporaryFolder m_folder;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace mediagraph::testing
