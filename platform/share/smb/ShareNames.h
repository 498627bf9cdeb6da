// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Names without paths, asked through qmshare: the shares that a server offers, and the computers that the
// network's own browsing knows. All block as the waiter does.

#include "platform/share/smb/SmbServer.h"

#include <functional>
#include <string>
#include <vector>

namespace share::smb {

// What SmbServer::call() throws when the server does not tell.
std::vector<std::string> shareNames(SmbServer& server, const std::string& name, Waiter& waiter);

// Calls `found` for each computer as the workgroups answer, in a qmshare of its own, and returns when all
// have, or when the waiter was cancelled. A network without any is no failure, nor is anything else.
void browseComputers(
    const std::string& helperProgram, Waiter& waiter,
    const std::function<void(const std::string& computer, const std::string& workgroup)>& found);

} // namespace share::smb
