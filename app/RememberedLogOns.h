// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Who logs on to which server, as the keyring remembers it from earlier runs. The keyring is asked once for
// each server, before the first log-on to it, which waits meanwhile: a user is not passed over, and nobody
// anonymous is tried, because a keyring still has to be opened. One that does not answer for long is taken
// for none. What preparation() and source() give may be called on any thread and outlast this object;
// everything else belongs to the user-interface thread. The keyring must outlive it.

#include "platform/share/FileDescriptor.h"
#include "platform/share/smb/SmbServer.h"
#include "platform/shell/Keyring.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace app {

class RememberedLogOns final : public QObject {
    Q_OBJECT
public:
    using Credentials = share::smb::Credentials;

    static constexpr std::chrono::seconds kLongestWait{25}; // as long as a call over D-Bus

    // `failed` is told of a password that could not be stored.
    RememberedLogOns(shell::Keyring& keyring, std::function<void()> failed);
    ~RememberedLogOns() override;

    // Returns when the keyring has told what it knows; error 76 when that takes longer than a request may.
    share::smb::SmbServer::Preparation preparation() const;
    // Whom the keyring knows, else whom `otherwise` does.
    share::smb::CredentialSource source(share::smb::CredentialSource otherwise) const;

    bool isRemembered(const std::string& server) const;
    void remember(const std::string& server, const Credentials& credentials);
    void forget(const std::string& server);

private:
    struct Entry {
        std::optional<Credentials> who;
        bool isKnown = false;
        share::FileDescriptor known; // readable from then on
    };
    using Entries = std::map<std::string, std::shared_ptr<Entry>>; // by name without case
    struct Desk {
        std::mutex mutex;
        RememberedLogOns* owner = nullptr;
        Entries entries;

        std::shared_ptr<Entry> entry(const std::string& name);
        bool isKnown(const Entry& entry);
        void learn(const std::string& name, std::optional<Credentials> who);
    };

    void look(const std::string& name);

    shell::Keyring& m_keyring;
    const std::function<void()> m_failed;
    const std::shared_ptr<Desk> m_desk = std::make_shared<Desk>();
};

} // namespace app
