// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/clsComBrowser.h"

#include "resources/StringTable.h"

#include <optional>
#include <string_view>

namespace dialogs {
namespace {

using resources::LoadLocalString;

// Up to its first zero; a buffer without one is full.
std::string textIn(const shell::PathBuffer& buffer) {
    const std::string_view whole(buffer.data(), buffer.size());
    return std::string(whole.substr(0, whole.find('\0')));
}

} // namespace

std::string clsComBrowser::GetBrowseNetworkWorkstation(shell::OwnerHandle owner) {
    errors::Procedure proc{m_errors, "clsComBrowser", "GetBrowseNetworkWorkstation"};
    return browse(proc, {.hwndOwner = owner,
                         .lpszTitle = LoadLocalString(3764, "Select a network computer."),
                         .ulFlags = shell::kBifBrowseForComputer});
}

std::string clsComBrowser::GetBrowseNetworkShare(shell::OwnerHandle owner) {
    errors::Procedure proc{m_errors, "clsComBrowser", "GetBrowseNetworkShare"};
    return browse(proc, {.hwndOwner = owner,
                         .lpszTitle = LoadLocalString(3763, "Select a network computer or share."),
                         .ulFlags = shell::kBifReturnOnlyFsDirs});
}

std::string clsComBrowser::browse(errors::Procedure& proc, shell::BrowseInfo info) {
    const bool isThere = proc.value(false, [&] {
        return m_shell.SHGetSpecialFolderLocation(info.hwndOwner, shell::kCsidlNetwork, info.pidlRoot) == 0;
    });
    if (!isThere)
        return {};
    std::optional<shell::ItemIdList> picked;
    proc.step([&] { picked = m_shell.SHBrowseForFolderA(info); });
    if (!picked)
        return {};
    return nameOf(proc, *picked, info.pszDisplayName);
}

std::string clsComBrowser::nameOf(errors::Procedure& proc, const shell::ItemIdList& picked,
                                  const shell::PathBuffer& displayName) {
    shell::PathBuffer path{};
    const bool hasPath = proc.value(false, [&] { return m_shell.SHGetPathFromIDListA(picked, path); });
    if (!proc.running())
        return {};
    return hasPath ? textIn(path) : "\\\\" + textIn(displayName);
}

} // namespace dialogs
