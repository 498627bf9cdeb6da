// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryPaths.h"

#include <cstdlib>
#include <string_view>

namespace registry {
namespace {

constexpr std::string_view kFile = "/Corvantis/Quillamar/registry.reg";

std::string absoluteOrEmpty(const std::optional<std::string>& folder) {
    return folder && folder->substr(0, 1) == "/" ? *folder : std::string();
}

std::string userFolder(const Environment& environment) {
    const std::string configured = absoluteOrEmpty(environment("XDG_CONFIG_HOME"));
    if (!configured.empty())
        return configured;
    const std::string home = absoluteOrEmpty(environment("HOME"));
    return home.empty() ? home : home + "/.config";
}

std::vector<std::string> machineFiles(std::string_view folders) {
    std::vector<std::string> files;
    while (!folders.empty()) {
        const std::size_t end = folders.find(':');
        const std::string_view folder = folders.substr(0, end);
        if (folder.substr(0, 1) == "/")
            files.push_back(std::string(folder).append(kFile));
        folders.remove_prefix(end == std::string_view::npos ? folders.size() : end + 1);
    }
    return files;
}

} // namespace

RegistryPaths pathsFromEnvironment(const Environment& environment) {
    RegistryPaths paths;
    if (const std::string folder = userFolder(environment); !folder.empty())
        paths.currentUser = folder + std::string(kFile);
    paths.localMachine = machineFiles(environment("XDG_CONFIG_DIRS").value_or(""));
    if (paths.localMachine.empty())
        paths.localMachine = machineFiles("/etc/xdg");
    return paths;
}

RegistryPaths pathsFromEnvironment() {
    return pathsFromEnvironment([](const char* name) -> std::optional<std::string> {
        const char* const value = std::getenv(name);
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    });
}

} // namespace registry
