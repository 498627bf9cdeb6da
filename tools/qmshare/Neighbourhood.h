// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What can be found out without a file or folder: the workgroups of this network, the computers of one, and
// the shares of a server. Workgroups are asked for as the machine's own configuration of the library says,
// older protocols included if that allows them; nobody logs on by a name for it.

#include "platform/share/smb/FolderPage.h"

#include <libsmbclient.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qmshare {

class Neighbourhood {
public:
    // Error 51 when the library cannot be set up.
    Neighbourhood();

    // The computers of a workgroup, or all workgroups for the empty name. Whatever fails: none.
    std::vector<share::smb::FolderEntry> list(std::string_view workgroup);

private:
    struct Free {
        void operator()(SMBCCTX* context) const noexcept;
    };

    std::unique_ptr<SMBCCTX, Free> m_context;
};

// The shares for files that a server names to everybody: those whose names end in $ are hidden. Nothing and
// errno when it does not tell.
std::optional<std::vector<share::smb::FolderEntry>> sharesOf(SMBCCTX* context, const std::string& host);

} // namespace qmshare
