// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the network browser looks with and says: computers announced by DNS-SD or known to the network's own
// browsing, shares as the servers tell them.

#include "platform/share/smb/SmbServers.h"
#include "platform/shell/NetworkBrowser.h"

namespace app {

shell::NetworkTexts networkTexts();
// The system bus is not touched before the browser is opened.
shell::NetworkBrowser::Sources networkSources(share::smb::SmbServer::Surroundings surroundings,
                                              share::smb::SmbServers::Addresses addresses);

} // namespace app
