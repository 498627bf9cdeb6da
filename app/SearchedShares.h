// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Opens a server's share for the thread that searches it for mailboxes: a folder of this machine with a file
// system that needs nothing of the program, or the server by way of the program's own servers, so that a
// user is logged on once. What it is given must outlive the searches. User-interface thread.

#include "dialogs/MailboxSearch.h"
#include "platform/share/ShareResolver.h"
#include "platform/share/smb/SmbServers.h"

#include <string>

namespace app {

class SearchedShares {
public:
    SearchedShares(share::smb::SmbServers& servers, share::ShareResolver::Mapping mapping)
        : m_servers(servers), m_mapping(std::move(mapping)) {}

    // A name that is no path is a folder that does not exist.
    dialogs::SearchedShare operator()(const std::string& folder) const;

private:
    dialogs::SearchedShare onServer(const std::string& server) const;

    share::smb::SmbServers& m_servers;
    share::ShareResolver::Mapping m_mapping;
};

} // namespace app
