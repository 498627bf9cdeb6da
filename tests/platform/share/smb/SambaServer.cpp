// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/share/smb/SambaServer.h"

#include "platform/share/FileDescriptor.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace share::testing {
namespace {

constexpr std::chrono::milliseconds kPatience{60'000};

FileDescriptor newSocket() {
    return FileDescriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

std::uint16_t freePort() {
    const FileDescriptor socket = newSocket();
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    if (::bind(socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::getsockname(socket.get(), reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("no free port");
    return ntohs(address.sin_port);
}

bool answers(std::uint16_t port) {
    const FileDescriptor socket = newSocket();
    const sockaddr_in address = loopback(port);
    return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

// A process that somebody else started: its end is seen without being its parent. The C library's own calls
// lack their C linkage in its version 2.36.
class Process {
public:
    explicit Process(pid_t id) : m_descriptor(static_cast<int>(::syscall(SYS_pidfd_open, id, 0))) {}

    void send(int signal) const { ::syscall(SYS_pidfd_send_signal, m_descriptor.get(), signal, nullptr, 0); }
    // One that was gone already has ended as well.
    void awaitEnd(const char* what) const {
        pollfd ended{m_descriptor.get(), POLLIN, 0};
        if (m_descriptor.isOpen() && ::poll(&ended, 1, static_cast<int>(kPatience.count())) != 1)
            throw std::runtime_error(std::string("smbd: ") + what);
    }

private:
    FileDescriptor m_descriptor;
};

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace

SambaServer::SambaServer(const Options& options) : m_port(freePort()) {
    if (::geteuid() != 0)
        throw std::runtime_error("smbd logs users on only when root starts it");
    writeConfiguration(options);
    setPassword(options.password);
    start();
}

SambaServer::~SambaServer() {
    kill();
}

void SambaServer::writeConfiguration(const Options& options) const {
    for (const char* folder : {"private", "lock", "state", "cache", "pid", "ncalrpc"})
        m_own.makeFolder(folder);
    m_own.makeFile("users", std::string("root = ") + kUser + " " + options.userNames + "\n");
    const std::string own = m_own.path();
    m_own.makeFile(
        "smb.conf",
        "[global]\nserver role = standalone server\nworkgroup = QMTEST\ninterfaces = 127.0.0.1\n"
        "bind interfaces only = yes\nsmb ports = " +
            std::to_string(m_port) + "\nprivate dir = " + own + "/private\nlock directory = " + own +
            "/lock\nstate directory = " + own + "/state\ncache directory = " + own +
            "/cache\npid directory = " + own + "/pid\nncalrpc dir = " + own +
            "/ncalrpc\npassdb backend = smbpasswd:" + own + "/private/smbpasswd\nlog file = " + own +
            "/log\nlog level = 1 auth_audit:3\ndisable netbios = yes\ndisable spoolss = yes\n"
            "load printers = no\nprintcap name = /dev/null\nusername map = " +
            own + "/users\n" + options.global +
            "\n[Quillamar_0$]\npath = " + (options.folder.empty() ? m_share.path() : options.folder) +
            "\nread only = no\nbrowseable = no\n" + options.ofShare + "\n");
}

void SambaServer::setPassword(const std::string& password) const {
    FILE* program =
        ::popen(("smbpasswd -c " + m_own.path("smb.conf") + " -s -a root >/dev/null 2>&1").c_str(), "w");
    if (program == nullptr)
        throw std::runtime_error("smbpasswd cannot be started");
    std::fprintf(program, "%s\n%s\n", password.c_str(), password.c_str());
    if (::pclose(program) != 0)
        throw std::runtime_error("smbpasswd takes no password");
}

void SambaServer::start() {
    const std::string configuration = m_own.path("smb.conf");
    m_id = ::fork();
    if (m_id == 0) {
        ::setpgid(0, 0);
        if (std::freopen("/dev/null", "r", stdin) == nullptr ||
            std::freopen(m_own.path("out").c_str(), "a", stdout) == nullptr || ::dup2(1, 2) < 0)
            ::_exit(126);
        ::execlp("smbd", "smbd", "--foreground", "--no-process-group", "-s", configuration.c_str(), nullptr);
        ::_exit(127);
    }
    if (m_id < 0)
        throw std::runtime_error("fork");
    ::setpgid(m_id, m_id); // here as well: whoever comes first
    waitUntilItAnswers();
}

// Nobody is told that another process listens.
void SambaServer::waitUntilItAnswers() const {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!answers(m_port)) {
        if (::waitpid(m_id, nullptr, WNOHANG) == m_id)
            throw std::runtime_error("smbd ended: " + contentOf(m_own.path("out")));
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error("smbd: it does not start");
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void SambaServer::kill() {
    if (m_id < 0)
        return;
    signal(SIGKILL);
    while (::waitpid(m_id, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_id = -1;
    endNamesService();
}

// Started by smbd to name its shares, and not one of its group.
void SambaServer::endNamesService() const {
    std::ifstream file(m_own.path("pid/samba-dcerpcd.pid"));
    pid_t id = -1;
    if (!(file >> id) || id <= 1)
        return;
    const Process service(id);
    const std::string command = contentOf("/proc/" + std::to_string(id) + "/cmdline");
    if (command.find(m_own.path("smb.conf")) == std::string::npos)
        return;
    service.send(SIGTERM);
    service.awaitEnd("its service for names does not end");
}

void SambaServer::pause() {
    signal(SIGSTOP);
}

void SambaServer::resume() {
    signal(SIGCONT);
}

void SambaServer::signal(int number) const {
    if (m_id > 1)
        ::kill(-m_id, number);
}

void SambaServer::cutConnections() {
    const std::vector<pid_t> victims = connections();
    if (victims.empty())
        throw std::runtime_error("smbd has no connection to cut");
    for (const pid_t id : victims) {
        const Process connection(id);
        connection.send(SIGKILL);
        connection.awaitEnd("a connection stays");
    }
}

// One process for each; smbd's other processes say in their names what they are for.
std::vector<pid_t> SambaServer::connections() const {
    std::vector<pid_t> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos)
            continue;
        const pid_t id = std::stoi(name);
        if (id != m_id && ::getpgid(id) == m_id && contentOf(entry.path() / "comm") == "smbd\n")
            found.push_back(id);
    }
    return found;
}

bool SambaServer::runClient(const std::string& commands) const {
    const std::string line = "smbclient -s /dev/null //127.0.0.1/Quillamar_0$ -p " + std::to_string(m_port) +
                             " -U " + kUser + "%secret -c '" + commands + "' >/dev/null 2>&1";
    return std::system(line.c_str()) == 0;
}

int SambaServer::logOns(const std::string& status) const {
    std::ifstream log(m_own.path("log"));
    int count = 0;
    for (std::string line; std::getline(log, line);)
        if (line.find("Auth: [SMB2") != std::string::npos &&
            line.find("status [" + status + "]") != std::string::npos)
            ++count;
    return count;
}

} // namespace share::testing
