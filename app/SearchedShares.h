// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Opens a server's share for the thread that searches it for mailboxes: a folder of this machine with a file
// system that needs nothing of the program, or the server by way of the program's own servers, so that a
// user is logged on once, and a search waits for the question that it leads to. What it is given must outlive
// the searches. User-interface thread.

#include "app/LogOnDesk.h"
#include "dialogs/MailboxSearch.h"
#include "platform/share/ShareResolver.h"
#include "platform/share/smb/SmbServers.h"

#include <memory>
#include <string>

namespace app {

class SearchedShares {
public:
    SearchedShares(share::smb::SmbServers& servers, share::ShareResolver::Mapping mapping,
                   std::shared_ptr<const LogOnDesk> desk)
        : m_servers(servers), m_mapping(std::move(mapping)), m_desk(std::move(desk)) {}

    // A name that is no path is a folder that does not exist.
    dialogs::SearchedShare operator()(const std::string& folder) const;

private:
    dialogs::SearchedShare onServer(const std::string& server) const;

    share::smb::SmbServers& m_servers;
    share::ShareResolver::Mapping m_mapping;
    std::shared_ptr<const LogOnDesk> m_desk;
};

} // namespace app
