// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NetworkBrowser.h"

#include <QApplication>
#include <QWindow>

#include <algorithm>

namespace shell {
namespace {

constexpr std::int32_t kNoError = 0;
constexpr std::int32_t kInvalidArgument = static_cast<std::int32_t>(0x80070057);

// With its zero; false and an empty text where there is no room for that.
bool put(const std::string& text, PathBuffer& buffer) {
    buffer.fill('\0');
    if (text.size() >= buffer.size())
        return false;
    std::copy(text.begin(), text.end(), buffer.begin());
    return true;
}

// Null for a window that is gone.
QWindow* windowOf(OwnerHandle owner) {
    const QWidgetList all = QApplication::allWidgets();
    const auto found = std::find_if(all.begin(), all.end(), [owner](const QWidget* widget) {
        return reinterpret_cast<OwnerHandle>(widget) == owner;
    });
    return found == all.end() ? nullptr : (*found)->window()->windowHandle();
}

} // namespace

std::int32_t NetworkBrowser::SHGetSpecialFolderLocation(OwnerHandle, std::int32_t nFolder,
                                                        ItemIdList& ppidl) {
    ppidl = {};
    return nFolder == kCsidlNetwork ? kNoError : kInvalidArgument;
}

std::optional<ItemIdList> NetworkBrowser::SHBrowseForFolderA(BrowseInfo& lpbi) {
    const bool withShares = (lpbi.ulFlags & kBifBrowseForComputer) == 0;
    NetworkDialog dialog(m_texts, QString::fromStdString(lpbi.lpszTitle), m_sources.computers(),
                         withShares ? m_sources.shares() : nullptr);
    dialog.winId(); // makes the window's handle
    dialog.windowHandle()->setTransientParent(windowOf(lpbi.hwndOwner));
    dialog.search();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    std::optional<ItemIdList> picked = dialog.picked();
    if (picked)
        put(picked->share.empty() ? picked->computer : picked->share, lpbi.pszDisplayName);
    return picked;
}

bool NetworkBrowser::SHGetPathFromIDListA(const ItemIdList& pidl, PathBuffer& pszPath) {
    pszPath.fill('\0');
    return !pidl.share.empty() && put("\\\\" + pidl.computer + "\\" + pidl.share, pszPath);
}

} // namespace shell
