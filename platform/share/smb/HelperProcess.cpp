// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/HelperProcess.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/smb/Messages.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <system_error>

namespace share::smb {
namespace {

constexpr const char* kProgramName = "qmshare";

class SpawnActions {
public:
    // /dev/null for the three standard streams, `channel` where qmshare looks for it, nothing else. A
    // descriptor that is its own copy would keep its close-on-exec flag, hence the detour where they meet.
    explicit SpawnActions(int channel) {
        ::posix_spawn_file_actions_init(&m_actions);
        constexpr int kDetour = kChannelDescriptor + 1;
        ::posix_spawn_file_actions_adddup2(&m_actions, channel, kDetour);
        ::posix_spawn_file_actions_adddup2(&m_actions, kDetour, kChannelDescriptor);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            ::posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", O_RDWR, 0);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, kDetour);
    }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }

    const posix_spawn_file_actions_t* get() const noexcept { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

// A group of its own, so that Ctrl+C in a terminal ends the client, which ends the helper; all signals as
// they are for a new program.
class SpawnAttributes {
public:
    SpawnAttributes() {
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setflags(&m_attributes,
                                   POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        sigset_t signals{};
        ::sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&m_attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signals);
    }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }

    const posix_spawnattr_t* get() const noexcept { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

pid_t spawn(const std::string& program, int channel) {
    const SpawnActions actions(channel);
    const SpawnAttributes attributes;
    std::string name = kProgramName;
    const std::array<char*, 2> arguments{name.data(), nullptr};
    pid_t id = -1;
    const int failure =
        ::posix_spawn(&id, program.c_str(), actions.get(), attributes.get(), arguments.data(), environ);
    if (failure != 0)
        throw basic::RuntimeError(basic::kPathFileAccess,
                                  "start: " + program + ": " + std::generic_category().message(failure));
    return id;
}

} // namespace

HelperProcess::HelperProcess(const std::string& program) {
    auto [ours, its] = PacketSocket::pair();
    m_id = spawn(program, its.descriptor());
    m_socket = std::move(ours);
}

HelperProcess::~HelperProcess() {
    ::kill(m_id, SIGKILL);
    while (::waitpid(m_id, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::string helperProgram() {
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / kProgramName).string();
}

} // namespace share::smb
