// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Who logs on to which server: the user who was typed in for it during this run, else whom `otherwise` knows.
// A server that refuses its user makes one question to the person at the desk, after all waits; a server
// refuses once for each user and password, so nobody is asked at every tick, and after a cancelled question
// nobody is asked again until he wants something of that server. What source() and refusalHook() give may be
// called on any thread and outlast this object; everything else belongs to the user-interface thread.

#include "app/LogOnDesk.h"
#include "platform/share/smb/SmbServer.h"
#include "platform/shell/LogOnDialog.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace app {

class LogOns final : public QObject {
    Q_OBJECT
public:
    using Credentials = share::smb::Credentials;

    struct Answer {
        Credentials who;
        bool isToBeRemembered = false;
    };
    struct Services {
        share::smb::CredentialSource otherwise;
        // Asks the person at the desk, modally; `last` was refused. Nothing when that was cancelled.
        std::function<std::optional<Answer>(const std::string& server, const Credentials& last)> ask;
        // For later runs, or not any more.
        std::function<void(const std::string& server, const Credentials& who, bool isToBeRemembered)>
            remember;
        // Runs the work now or when no wait for a server is under way.
        std::function<void(std::function<void()>)> afterWaiting;
        // Somebody else may now log on.
        std::function<void()> tryNow;
        // The same, for a question that came by itself: nobody waits for its answer.
        std::function<void()> goOn;
    };

    explicit LogOns(Services services);
    ~LogOns() override;

    share::smb::CredentialSource source() const;
    std::function<void(const std::string& server)> refusalHook() const;
    // For threads that can wait for the person at the desk.
    std::shared_ptr<const LogOnDesk> desk() const { return m_desk; }

    // The person at the desk wants to reach this server now: if it refused its user, asks for another one.
    // False if it did not or the question was cancelled.
    bool askNow(const std::string& server);
    // The same, trying at once, until `isThere` says that it is reached or nobody logs on any more. A server
    // that only wants another user is reached.
    bool reach(const std::string& server, const std::function<bool()>& isThere);

private:
    void questioned(const std::string& server);
    bool ask(const std::string& server);

    const Services m_services;
    const std::shared_ptr<LogOnDesk> m_desk = std::make_shared<LogOnDesk>();
    std::set<std::string> m_asked; // questions that are on the screen
};

// The question, in a dialog.
std::optional<LogOns::Answer> askForCredentials(const std::string& server,
                                                const share::smb::Credentials& last,
                                                shell::Remembering remembering);

} // namespace app
