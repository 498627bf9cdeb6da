// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// qmbenchsmb PORT: asks the server on 127.0.0.1 the way the client does, through a qmshare process, nothing
// mounted. Commands come on standard input, one a line, after a first line with user and password; each is
// answered on standard output with the microseconds it took:
//   poll COUNT    one tick: the share, then the number of calls of the mailboxes 1 to COUNT
//   list MAILBOX  all calls of one mailbox as the list reads them
#include "bench/OurTable.h"
#include "platform/share/ThreadWaiter.h"
#include "platform/share/smb/SmbFileSystemObject.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace {

constexpr const char* kShare = "\\\\bench\\Quillamar_0$";

std::string database(int mailbox) {
    return std::string(kShare) + "\\MBX\\" + std::to_string(mailbox) + "\\qmLog.mdb";
}

class Client {
public:
    Client(std::uint16_t port, const std::string& user, const std::string& password)
        : m_servers({.program = share::smb::helperProgram(),
                     .spread = [] { return 0.0; },
                     .credentials =
                         [=](const std::string&) { return share::smb::Credentials::of(user, password); }},
                    [port](std::string_view) {
                        return share::smb::ServerAddress{"127.0.0.1", port};
                    }) {}

    void poll(int mailboxes) {
        if (!m_files.FolderExists(kShare))
            throw std::runtime_error("the share is not there");
        for (int mailbox = 1; mailbox <= mailboxes; ++mailbox) {
            const std::string path = database(mailbox);
            if (bench::countCalls(m_engine, bench::connectionTo(path)) == 0)
                throw std::runtime_error(path + " has no calls");
        }
    }
    void list(int mailbox) {
        if (bench::readForList(m_engine, bench::connectionTo(database(mailbox))) == 0)
            throw std::runtime_error("no text was read");
    }

private:
    share::ThreadWaiter m_waiter;
    share::smb::SmbServers m_servers;
    share::smb::SmbFileSystemObject m_files{m_servers, m_waiter};
    jet::Engine m_engine{m_files};
};

void obey(Client& client, const std::string& command, int number) {
    const auto started = std::chrono::steady_clock::now();
    if (command == "poll")
        client.poll(number);
    else if (command == "list")
        client.list(number);
    else
        throw std::runtime_error("unknown command " + command);
    const auto spent = std::chrono::steady_clock::now() - started;
    std::cout << std::chrono::duration_cast<std::chrono::microseconds>(spent).count() << std::endl;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: qmbenchsmb PORT < COMMANDS\n";
        return 2;
    }
    try {
        std::string user, password, command;
        std::cin >> user >> password;
        Client client(static_cast<std::uint16_t>(std::stoi(argv[1])), user, password);
        for (int number = 0; std::cin >> command >> number;)
            obey(client, command, number);
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << "qmbenchsmb: " << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
