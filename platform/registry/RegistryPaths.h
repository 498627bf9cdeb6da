// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the two hives lie. Computed once from the environment by the program, set by tests.

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace registry {

struct RegistryPaths {
    std::string currentUser;               // empty: none, nothing can be saved
    std::vector<std::string> localMachine; // in the order of looking; the first file found counts
};

// Answers an environment variable; nothing for one that is not set.
using Environment = std::function<std::optional<std::string>(const char* name)>;

// HKEY_CURRENT_USER: Corvantis/Quillamar/registry.reg in $XDG_CONFIG_HOME, by default $HOME/.config.
// HKEY_LOCAL_MACHINE: the same name in each of $XDG_CONFIG_DIRS, by default /etc/xdg. Empty and relative
// folders in these variables count as not set.
RegistryPaths pathsFromEnvironment(const Environment& environment);
// From the environment of this process.
RegistryPaths pathsFromEnvironment();

} // namespace registry
