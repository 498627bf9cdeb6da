// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A shell's folder browser in which the user's choice is made beforehand; what it was asked is kept.

#include "platform/basic/RuntimeError.h"
#include "platform/shell/FolderBrowser.h"

#include <algorithm>
#include <string_view>

namespace dialogs {

inline void put(std::string_view text, shell::PathBuffer& buffer) {
    const auto end = std::copy_n(text.begin(), std::min(text.size(), buffer.size()), buffer.begin());
    if (end != buffer.end())
        *end = '\0';
}

class ScriptedBrowser final : public shell::FolderBrowser {
public:
    std::int32_t SHGetSpecialFolderLocation(shell::OwnerHandle, std::int32_t nFolder,
                                            shell::ItemIdList&) override {
        if (isBroken)
            throw basic::RuntimeError(basic::kInvalidProcedureCall);
        folder = nFolder;
        return hasNetwork ? 0 : 1;
    }
    std::optional<shell::ItemIdList> SHBrowseForFolderA(shell::BrowseInfo& info) override {
        asked = info;
        info.pszDisplayName.fill('x');
        put(displayName, info.pszDisplayName);
        return picked;
    }
    bool SHGetPathFromIDListA(const shell::ItemIdList& item, shell::PathBuffer& buffer) override {
        if (item.share.empty())
            return false;
        buffer.fill('x');
        put("\\\\" + item.computer + "\\" + item.share, buffer);
        return true;
    }

    bool isBroken = false;
    bool hasNetwork = true;
    std::string displayName;
    std::optional<shell::ItemIdList> picked; // nothing: cancelled
    std::int32_t folder = 0;
    std::optional<shell::BrowseInfo> asked;
};

} // namespace dialogs
