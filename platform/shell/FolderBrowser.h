// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The shell's folder browser as the system is written against it, under the shell's own names: where a
// special folder lies, letting the user pick something below it, and what the file system calls the thing
// picked. Texts are UTF-8. User-interface thread.

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace shell {

inline constexpr std::int32_t kCsidlNetwork = 18; // the network neighbourhood
inline constexpr std::uint32_t kBifReturnOnlyFsDirs = 1;
inline constexpr std::uint32_t kBifBrowseForComputer = 4096;

// A window of this process: forms::handleOf().
using OwnerHandle = std::uintptr_t;

// Room for a name or a path with the zero that ends it.
using PathBuffer = std::array<char, 260>;

// What an item list of the shell names below the neighbourhood: itself (both empty), a computer, or a share
// of a computer.
struct ItemIdList {
    std::string computer{};
    std::string share{};

    bool operator==(const ItemIdList&) const = default;
};

struct BrowseInfo {
    OwnerHandle hwndOwner = 0;
    ItemIdList pidlRoot{};
    PathBuffer pszDisplayName{}; // of the item picked
    std::string lpszTitle{};     // a line above the items
    std::uint32_t ulFlags = 0;
};

class FolderBrowser {
public:
    FolderBrowser() = default;
    FolderBrowser(const FolderBrowser&) = delete;
    FolderBrowser& operator=(const FolderBrowser&) = delete;
    virtual ~FolderBrowser() = default;

    // 0 and the folder's list; any other number for a folder that is not there.
    virtual std::int32_t SHGetSpecialFolderLocation(OwnerHandle hwndOwner, std::int32_t nFolder,
                                                    ItemIdList& ppidl) = 0;
    // Returns when the user has picked something, nothing when the browser was cancelled.
    virtual std::optional<ItemIdList> SHBrowseForFolderA(BrowseInfo& lpbi) = 0;
    // False for an item that has no path, as a computer, and for one whose path has no room.
    virtual bool SHGetPathFromIDListA(const ItemIdList& pidl, PathBuffer& pszPath) = 0;
};

} // namespace shell
