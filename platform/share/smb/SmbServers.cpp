// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/SmbServers.h"

#include "platform/basic/TextCompare.h"

namespace share::smb {

SmbServer& SmbServers::server(const std::string& name) {
    const std::scoped_lock lock(m_mutex);
    std::unique_ptr<SmbServer>& server = m_servers[basic::foldCase(name)];
    if (!server) {
        std::optional<ServerAddress> address = m_addresses ? m_addresses(name) : std::nullopt;
        server = std::make_unique<SmbServer>(name, address ? std::move(*address) : ServerAddress{name},
                                             m_surroundings);
    }
    return *server;
}

void SmbServers::tryNow() {
    const std::scoped_lock lock(m_mutex);
    for (const auto& [name, server] : m_servers)
        server->tryNow();
}

void SmbServers::logOnAnew() {
    const std::scoped_lock lock(m_mutex);
    for (const auto& [name, server] : m_servers)
        server->logOnAnew();
}

} // namespace share::smb
