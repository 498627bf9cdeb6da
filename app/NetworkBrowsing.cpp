// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NetworkBrowsing.h"

#include "app/SmbComputers.h"
#include "app/SmbShares.h"
#include "platform/shell/AvahiComputers.h"
#include "resources/LocalText.h"

#include <QDBusConnection>

#include <utility>

namespace app {

using resources::localText;

shell::NetworkTexts networkTexts() {
    return {.caption = localText(3756, "Browse Network"),
            .ok = localText(5000, "OK"),
            .cancel = localText(5001, "Cancel"),
            .network = localText(5096, "Computers on the network"),
            .searching = localText(5090, "Searching the network..."),
            .found = localText(5091, "Computers found: %1"),
            .nothingFound = localText(5092, "No computers were found."),
            .loadingShares = localText(5093, "Loading shares..."),
            .noShares = localText(5094, "No shares"),
            .sharesFailed = localText(5095, "The shares of this computer cannot be listed.")};
}

shell::NetworkBrowser::Sources networkSources(share::smb::SmbServer::Surroundings surroundings,
                                              share::smb::SmbServers::Addresses addresses) {
    return {
        .computers =
            [program = surroundings.program] {
                shell::NetworkDialog::ComputerSources sources;
                sources.push_back(std::make_unique<shell::AvahiComputers>(QDBusConnection::systemBus()));
                sources.push_back(std::make_unique<SmbComputers>(program));
                return sources;
            },
        .shares = [surroundings, addresses] { return std::make_unique<SmbShares>(surroundings, addresses); }};
}

} // namespace app
