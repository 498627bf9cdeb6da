// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Deletes all calls of mailbox 7 on a server of this machine, step by step as the client's command does it.
// Each line of the standard input is answered by one line: 0, or the number of the error and its description.
//   delete PORT   as a client that was just started
//   again         repeats the step that failed, and goes on
//   pause         goes as far as before the commit, which "again" then does

#include "platform/jet/Connection.h"
#include "tests/platform/share/smb/SmbTest.h"

#include <array>
#include <iostream>
#include <optional>
#include <sstream>

namespace {

using share::testing::onShare;
using share::testing::SmbClient;

class Deletion {
public:
    explicit Deletion(std::uint16_t port) : m_client(port) {}

    std::string run(std::size_t steps) {
        m_client.letPass(std::chrono::minutes(1)); // whoever tries again has waited long enough
        try {
            for (; m_step < steps; ++m_step)
                step();
            return "0";
        } catch (const basic::RuntimeError& error) {
            return std::to_string(error.number()) + " " + error.description();
        }
    }

    static constexpr std::size_t kCommit = 3;

private:
    void step() {
        switch (m_step) {
        case 0:
            return m_connection.Open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" +
                                         onShare("MBX\\7\\qmLog.mdb"),
                                     jet::Purpose::Change);
        case 1:
            return m_connection.BeginTrans();
        case 2:
            m_connection.Execute("DELETE FROM CallLog");
            return;
        default:
            return m_connection.CommitTrans();
        }
    }

    SmbClient m_client;
    jet::Engine m_engine{m_client.files(), jet::Engine::sleepBriefly};
    jet::Connection m_connection{m_engine};
    std::size_t m_step = 0;
};

} // namespace

int main() {
    std::optional<Deletion> deletion;
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string command;
        std::uint16_t port = 0;
        words >> command;
        if (words >> port)
            deletion.emplace(port);
        if (!deletion)
            return 2;
        std::cout << deletion->run(command == "pause" ? Deletion::kCommit : Deletion::kCommit + 1)
                  << std::endl;
    }
    return 0;
}
