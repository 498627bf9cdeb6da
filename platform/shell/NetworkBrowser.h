// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The folder browser over the network, in the place of the shell's: the neighbourhood is always there, if
// empty; a computer has no path of the file system, a share has. Sources are made for each showing.
// User-interface thread.

#include "platform/shell/FolderBrowser.h"
#include "platform/shell/NetworkDialog.h"

#include <functional>

namespace shell {

class NetworkBrowser final : public FolderBrowser {
public:
    struct Sources {
        std::function<NetworkDialog::ComputerSources()> computers;
        std::function<std::unique_ptr<ShareSource>()> shares;
    };

    NetworkBrowser(NetworkTexts texts, Sources sources)
        : m_texts(std::move(texts)), m_sources(std::move(sources)) {}

    std::int32_t SHGetSpecialFolderLocation(OwnerHandle hwndOwner, std::int32_t nFolder,
                                            ItemIdList& ppidl) override;
    std::optional<ItemIdList> SHBrowseForFolderA(BrowseInfo& lpbi) override;
    bool SHGetPathFromIDListA(const ItemIdList& pidl, PathBuffer& pszPath) override;

private:
    NetworkTexts m_texts;
    Sources m_sources;
};

} // namespace shell
