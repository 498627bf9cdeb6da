// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A workstation without a network neighbourhood: there is nothing to browse, servers are entered by name.

#include "platform/shell/FolderBrowser.h"

namespace app {

class NoNetwork final : public shell::FolderBrowser {
public:
    std::int32_t SHGetSpecialFolderLocation(shell::OwnerHandle, std::int32_t, shell::ItemIdList&) override {
        return 1;
    }
    std::optional<shell::ItemIdList> SHBrowseForFolderA(shell::BrowseInfo&) override { return {}; }
    bool SHGetPathFromIDListA(const shell::ItemIdList&, shell::PathBuffer&) override { return false; }
};

} // namespace app
