// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A piece of a folder's listing on its way from qmshare: name after name with what the client has to know of
// each. Names come from the server: whoever makes paths of them checks them first.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace share::smb {

struct FolderEntry {
    bool isFolder = false;
    std::string name;
};

inline constexpr std::size_t kMaximumNameBytes = 1024; // 255 characters, each of up to four bytes

// As many of `entries` as one packet takes, from the first on; at least one. Answers how many in `taken`.
std::vector<std::byte> encodeFolderPage(std::span<const FolderEntry> entries, std::size_t& taken);
// Error 51 for anything that encodeFolderPage would not have made.
std::vector<FolderEntry> decodeFolderPage(std::span<const std::byte> page);

} // namespace share::smb
