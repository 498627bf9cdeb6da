// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The names in one folder of this machine, as it was at one moment. Symbolic links count as what they lead
// to: a folder that stands for a share is arranged by its administrator.

#include "platform/share/NamePattern.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace share {

class FolderListing {
public:
    // Ends with error 75 beyond this many names, so that a wrong folder cannot hold up the program.
    static constexpr std::size_t kMaximumNames = 200'000;

    // Names in the order of the file system, without "." and ".."; those that are not valid UTF-8 are left
    // out. Throws when the folder cannot be read.
    static std::vector<std::string> folders(const std::string& folder);
    // Of everything that is no folder.
    static std::vector<std::string> files(const std::string& folder, const NamePattern& pattern);

    // The path of `name` in `folder`: exactly so spelt, else the first one in order that differs in case
    // only. Nothing when there is none.
    static std::optional<std::string> find(const std::string& folder, const std::string& name);
};

} // namespace share
