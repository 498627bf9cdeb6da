// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What a test of the client's side needs around it: servers with a time of its own, the helper program as it
// was built, credentials to change, and file-system objects to ask.

#include "platform/share/ThreadWaiter.h"
#include "platform/share/smb/SmbFileSystemObject.h"
#include "tests/platform/share/ExpectError.h"
#include "tests/platform/share/smb/SambaServer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

namespace share::testing {

// A client of its own: its own process, connection and clock.
class SmbClient {
public:
    // `host` is where the server called srv01 is reached.
    explicit SmbClient(std::uint16_t port, std::string host = "127.0.0.1",
                       std::chrono::milliseconds deadline = std::chrono::milliseconds(3000),
                       std::shared_ptr<smb::Refusals> refusals = std::make_shared<smb::Refusals>())
        : m_servers(
              {.program = smb::helperProgram(),
               .deadline = deadline,
               .now = [this] { return m_time; },
               .spread = [] { return 0.0; },
               .credentials = [this](const std::string&) { return smb::Credentials::of(user, password); },
               .refused = [this](const std::string&) { ++refused; },
               .refusals = std::move(refusals)},
              [address = smb::ServerAddress{std::move(host), port}](std::string_view) { return address; }) {}

    smb::SmbServer& server() { return m_servers.server("srv01"); }
    smb::SmbServers& servers() { return m_servers; }
    smb::SmbFileSystemObject& files() { return m_files; }
    void letPass(std::chrono::milliseconds time) { m_time += time; }

    std::string user = SambaServer::kUser;
    std::string password = "secret";
    int refused = 0; // how often it was told so

private:
    std::chrono::milliseconds m_time{1'000'000};
    ThreadWaiter m_waiter;
    smb::SmbServers m_servers;
    smb::SmbFileSystemObject m_files{m_servers, m_waiter};
};

// Waits as usual and keeps the times that were allowed.
class NotedWaiter final : public Waiter {
public:
    Waited untilReadable(int descriptor, std::chrono::milliseconds atMost) override {
        allowed.push_back(atMost);
        return m_waiter.untilReadable(descriptor, atMost);
    }

    std::vector<std::chrono::milliseconds> allowed;

private:
    ThreadWaiter m_waiter;
};

// A name on the server's share.
inline std::string onShare(std::string_view below) {
    return std::string("\\\\srv01\\Quillamar_0$").append(below.empty() ? "" : "\\").append(below);
}

inline std::vector<std::byte> bytesOf(std::string_view text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

} // namespace share::testing
