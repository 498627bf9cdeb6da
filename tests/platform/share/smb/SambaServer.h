// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Samba's own smbd on 127.0.0.1 for one test: a free port, its files and the share Quillamar_0$ in a
// temporary folder, the user "mbxuser". Runs as the user who runs the test, who has to be root: smbd needs
// that to log users on. Ends with the object, with all its processes.

#include "tests/platform/share/TemporaryFolder.h"

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

namespace share::testing {

class SambaServer {
public:
    struct Options {
        std::string folder{}; // the share's; one of its own if empty
        std::string password = "secret";
        std::string global{};    // more lines of the configuration
        std::string ofShare{};   // more lines for the share
        std::string userNames{}; // more names that mean the user, for the user map
    };
    static constexpr const char* kUser = "mbxuser";

    explicit SambaServer(const Options& options);
    SambaServer() : SambaServer(Options{}) {}
    SambaServer(const SambaServer&) = delete;
    SambaServer& operator=(const SambaServer&) = delete;
    ~SambaServer();

    std::uint16_t port() const noexcept { return m_port; }
    // What the share's root is on this machine.
    const TemporaryFolder& share() const noexcept { return m_share; }

    void start();
    void kill();   // without a word to anybody
    void pause();  // SIGSTOP: connections are taken by the kernel, nothing is answered
    void resume(); // SIGCONT
    void cutConnections();
    void setPassword(const std::string& password) const;

    // What another client of the share does, in smbclient's words, with the password "secret".
    bool runClient(const std::string& commands) const;

    // Log-ons that the server saw so far, by their result ("NT_STATUS_OK").
    int logOns(const std::string& status) const;

private:
    void writeConfiguration(const Options& options) const;
    void signal(int number) const;
    void endNamesService() const;
    void waitUntilItAnswers() const;
    std::vector<pid_t> connections() const;

    TemporaryFolder m_own;
    TemporaryFolder m_share;
    std::uint16_t m_port;
    pid_t m_id = -1; // also of the process group
};

} // namespace share::testing
