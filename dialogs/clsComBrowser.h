// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lets the user pick a computer or a share on the network with the shell's folder browser. Keeps nothing
// between calls, each of which lasts until the browser is closed. What it is given must outlive it;
// user-interface thread.

#include "errors/Procedure.h"
#include "platform/shell/FolderBrowser.h"

#include <cstdint>
#include <string>

namespace dialogs {

class clsComBrowser {
public:
    clsComBrowser(errors::ErrorHandler& errorHandler, shell::FolderBrowser& shell)
        : m_errors(errorHandler), m_shell(shell) {}

    // \\COMPUTER, or the empty text when the browser was cancelled. `owner` is the window below the browser.
    std::string GetBrowseNetworkWorkstation(shell::OwnerHandle owner);
    // The same, or a share's path: \\COMPUTER\share.
    std::string GetBrowseNetworkShare(shell::OwnerHandle owner);

private:
    std::string browse(errors::Procedure& proc, shell::BrowseInfo info);
    std::string nameOf(errors::Procedure& proc, const shell::ItemIdList& picked,
                       const shell::PathBuffer& displayName);

    errors::ErrorHandler& m_errors;
    shell::FolderBrowser& m_shell;
};

} // namespace dialogs
