// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A child process of a test, ended with it: stopped, killed and waited for by its own number only.

#include <sys/types.h>

#include <string>
#include <vector>

namespace mediagraph::testing {

class ChildProcess {
public:
    ChildProcess() = default;
    // Output goes to the file, if one is named, and nowhere else.
    explicit ChildProcess(const std::vector<std::string>& command, const std::string& outputFile = {});
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() { end(); }

    // SIGTERM or whatever is told, and waits for the end. Again does nothing.
    void end(int signal = 15);
    void send(int signal) const;
    bool isRunning();
    // Waits for the end; the exit code.
    int result();

private:
    pid_t m_pid = -1;
};

} // namespace mediagraph::testing
