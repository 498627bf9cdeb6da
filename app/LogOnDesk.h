// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What is known in this run of who logs on to which server: whom the person at the desk typed in, which
// servers refused their user, and which questions about that are open. Servers are told apart by name without
// case. Threads may outlast everything else, so they share it. Any thread.

#include "platform/share/FileDescriptor.h"
#include "platform/share/Waiter.h"
#include "platform/share/smb/Credentials.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace app {

class LogOnDesk {
public:
    using Credentials = share::smb::Credentials;
    using Told = std::function<void(const std::string& server)>;

    // Told of each new question, on the thread that was refused. Null: nobody asks any more.
    void whenQuestioned(Told told);

    // A server refused its user.
    void refuse(const std::string& server);
    bool isRefused(const std::string& server) const;
    bool isQuestionOpen(const std::string& server) const;

    // The end of a question: who is to log on, or nothing when it was cancelled.
    void type(const std::string& server, Credentials typed);
    void closeQuestion(const std::string& server);
    std::optional<Credentials> typedFor(const std::string& server) const;

    // How often somebody was typed in: who was refused compares it with what it was before.
    int answers(const std::string& server) const;
    // Waits while a question about the server is open.
    void waitForAnswer(const std::string& server, share::Waiter& waiter) const;

private:
    // Readable from the question's end on.
    using Question = std::shared_ptr<share::FileDescriptor>;
    struct Server {
        std::optional<Credentials> typed;
        int answers = 0;
        bool isRefused = false;
        Question question; // the open one
    };

    Question question(const std::string& server) const;

    mutable std::mutex m_mutex;
    Told m_told;
    std::map<std::string, Server> m_servers;
};

} // namespace app
