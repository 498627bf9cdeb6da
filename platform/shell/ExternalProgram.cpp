// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/ExternalProgram.h"

#include "platform/basic/RuntimeError.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

// glibc 2.36 forgets to say that these are C.
extern "C" {
#include <sys/pidfd.h>
}

namespace shell {
namespace {

// A file without a name that holds the text: reading it never waits, and nothing needs to be fed.
class InputText {
public:
    explicit InputText(std::string_view text) : m_file(::memfd_create("input", MFD_CLOEXEC)) {
        while (m_file >= 0 && !text.empty()) {
            const ssize_t written = ::write(m_file, text.data(), text.size());
            if (written <= 0)
                break;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        m_isWhole = text.empty() && m_file >= 0 && ::lseek(m_file, 0, SEEK_SET) == 0;
    }
    InputText(const InputText&) = delete;
    InputText& operator=(const InputText&) = delete;
    ~InputText() {
        if (m_file >= 0)
            ::close(m_file);
    }

    bool isWhole() const { return m_isWhole; }
    int file() const { return m_file; }

private:
    int m_file;
    bool m_isWhole = false;
};

// Signals as a fresh program has them, a session of its own, and nothing of ours open.
class Launch {
public:
    explicit Launch(int input) {
        ::posix_spawn_file_actions_init(&m_files);
        ::posix_spawn_file_actions_adddup2(&m_files, input, STDIN_FILENO);
        ::posix_spawn_file_actions_addopen(&m_files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addopen(&m_files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        sigset_t none;
        sigset_t all;
        ::sigemptyset(&none);
        ::sigfillset(&all);
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setsigdefault(&m_attributes, &all);
        ::posix_spawnattr_setflags(&m_attributes,
                                   POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSID);
    }
    Launch(const Launch&) = delete;
    Launch& operator=(const Launch&) = delete;
    ~Launch() {
        ::posix_spawn_file_actions_destroy(&m_files);
        ::posix_spawnattr_destroy(&m_attributes);
    }

    // 0 or the system's error.
    int run(pid_t& process, const std::string& path, std::vector<std::string> words) {
        std::vector<char*> pointers;
        for (std::string& word : words)
            pointers.push_back(word.data());
        pointers.push_back(nullptr);
        return ::posix_spawn(&process, path.c_str(), &m_files, &m_attributes, pointers.data(), environ);
    }

private:
    posix_spawn_file_actions_t m_files{};
    posix_spawnattr_t m_attributes{};
};

bool isProgram(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored) && ::access(path.c_str(), X_OK) == 0;
}

std::vector<std::string> foldersOfPath() {
    std::vector<std::string> folders;
    const char* value = std::getenv("PATH");
    std::string_view rest(value == nullptr ? "" : value);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        if (rest.starts_with('/')) // a relative folder would be anybody's
            folders.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return folders;
}

} // namespace

std::string findProgram(std::string_view name, const std::vector<std::string>& furtherFolders) {
    std::vector<std::string> folders = foldersOfPath();
    folders.insert(folders.end(), furtherFolders.begin(), furtherFolders.end());
    for (const std::string& folder : folders) {
        const std::filesystem::path path = std::filesystem::path(folder) / name;
        if (isProgram(path))
            return path.string();
    }
    return {};
}

ExternalProgram::~ExternalProgram() {
    if (m_process >= 0)
        ::close(m_process);
}

void ExternalProgram::start(const std::string& path, const std::vector<std::string>& arguments,
                            std::string_view input) {
    const InputText text(input);
    if (!text.isWhole())
        throw basic::errorFromErrno(errno, "input", path);
    std::vector<std::string> words{path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    pid_t process = 0;
    if (const int error = Launch(text.file()).run(process, path, std::move(words)); error != 0)
        throw basic::errorFromErrno(error, "start", path);
    watch(process);
}

void ExternalProgram::watch(pid_t process) {
    m_process = ::pidfd_open(process, 0);
    if (m_process < 0)
        throw basic::errorFromErrno(errno, "watch", std::to_string(process));
    m_notifier = new QSocketNotifier(m_process, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &ExternalProgram::processEnded);
}

void ExternalProgram::processEnded() {
    m_notifier->setEnabled(false);
    siginfo_t status{};
    const bool isKnown = ::waitid(P_PIDFD, static_cast<id_t>(m_process), &status, WEXITED | WNOHANG) == 0;
    Q_EMIT ended(isKnown && status.si_code == CLD_EXITED ? status.si_status : -1);
}

} // namespace shell
