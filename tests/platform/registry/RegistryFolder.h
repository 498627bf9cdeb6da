// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A folder of a test's own with a settings file for each root, and the registry over it. Removed with
// everything in it at the end.

#include "platform/registry/Registry.h"
#include "tests/platform/share/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace registry {

class RegistryFolder {
public:
    std::filesystem::path folder() const { return m_folder.path(); }
    std::string userFile() const { return m_folder.path("user/registry.reg"); }
    std::string machineFile() const { return m_folder.path("machine/registry.reg"); }
    RegistryPaths paths() const { return {userFile(), {machineFile()}}; }

    // Makes the file's folder too.
    static void put(const std::string& path, const std::string& bytes) {
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    }
    static std::string content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    // A settings file of these lines.
    static std::string settings(const std::string& lines) {
        return "Windows Registry Editor Version 5.00\n\n" + lines;
    }

private:
    share::testing::TemporaryFolder m_folder;
};

} // namespace registry
