// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Who logs on to which server: the user who was typed in for it during this run, else what `otherwise` knows
// (the credentials file). A server that refuses its user makes one question to the person at the desk, after
// all waits; a server is asked for as it refuses, which it does once for each user and password, so nobody is
// asked at every tick. What source() gives and refused() may be called on any thread, everything else belongs
// to the user-interface thread.

#include "platform/share/smb/SmbServer.h"

#include <QObject>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

namespace app {

class LogOns final : public QObject {
    Q_OBJECT
public:
    using Credentials = share::smb::Credentials;

    struct Services {
        share::smb::CredentialSource otherwise;
        // Asks the person at the desk, modally; `last` was refused. Nothing when that was cancelled.
        std::function<std::optional<Credentials>(const std::string& server, const Credentials& last)> ask;
        // Runs the work now or when no wait for a server is under way.
        std::function<void(std::function<void()>)> afterWaiting;
        // Somebody else may now log on.
        std::function<void()> tryNow;
    };

    explicit LogOns(Services services) : m_services(std::move(services)) {}

    // Who logs on, for threads that may outlast this object as well.
    share::smb::CredentialSource source() const;
    void refused(const std::string& server);

private:
    void question(const std::string& server);

    struct Typed {
        std::mutex mutex;
        std::map<std::string, Credentials> byServer; // by name without case
    };

    const Services m_services;
    const std::shared_ptr<Typed> m_typed = std::make_shared<Typed>();
    std::set<std::string> m_asked; // questions under way
};

// The question, in a dialog.
std::optional<share::smb::Credentials> askForCredentials(const std::string& server,
                                                         const share::smb::Credentials& last);

} // namespace app
