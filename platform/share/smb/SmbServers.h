// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The servers that were talked to so far, each with its own process, so that a dead one delays nobody else's
// mailboxes. Names compare without case. Any thread.

#include "platform/share/smb/SmbServer.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace share::smb {

class SmbServers {
public:
    // Where a server of this name is reached, if not under its name.
    using Addresses = std::function<std::optional<ServerAddress>(std::string_view server)>;

    SmbServers(SmbServer::Surroundings surroundings, Addresses addresses)
        : m_surroundings(std::move(surroundings)), m_addresses(std::move(addresses)) {}

    // Valid as long as this object.
    SmbServer& server(const std::string& name);
    // The user's own click: servers that are left alone are tried at the next request.
    void tryNow();
    // The user looks after the settings: users who were refused are tried again as well.
    void logOnAnew();

private:
    const SmbServer::Surroundings m_surroundings;
    const Addresses m_addresses;
    std::mutex m_mutex;
    std::map<std::string, std::unique_ptr<SmbServer>, std::less<>> m_servers; // by name without case
};

} // namespace share::smb
