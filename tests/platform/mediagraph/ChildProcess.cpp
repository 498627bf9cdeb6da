// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/mediagraph/ChildProcess.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace mediagraph::testing {

ChildProcess::ChildProcess(const std::vector<std::string>& command, const std::string& outputFile) {
    std::vector<char*> arguments;
    for (const auto& part : command)
        arguments.push_back(const_cast<char*>(part.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    const std::string output = outputFile.empty() ? "/dev/null" : outputFile;
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    const int failure = posix_spawnp(&m_pid, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    EXPECT_EQ(failure, 0) << command.front();
}

void ChildProcess::send(int signal) const {
    if (m_pid > 0)
        ::kill(m_pid, signal);
}

void ChildProcess::end(int signal) {
    send(signal);
    result();
}

bool ChildProcess::isRunning() {
    int status = 0;
    if (m_pid > 0 && ::waitpid(m_pid, &status, WNOHANG) == m_pid)
        m_pid = -1;
    return m_pid > 0;
}

int ChildProcess::result() {
    int status = 0;
    if (m_pid > 0)
        ::waitpid(m_pid, &status, 0);
    m_pid = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace mediagraph::testing
