// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A folder of a test's own with a settings file for each root, and the registry over it. Removed with
// everything in it at the end.

#include "platform/registry/Registry.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

namespace registry {

class RegistryFolder {
public:
    RegistryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "registryXXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_folder = name;
    }
    RegistryFolder(const RegistryFolder&) = delete;
    RegistryFolder& operator=(const RegistryFolder&) = delete;
    ~RegistryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    const std::filesystem::path& folder() const { return m_folder; }
    std::string userFile() const { return m_folder / "user" / "registry.reg"; }
    std::string machineFile() const { return m_folder / "machine" / "registry.reg"; }
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
    std::filesystem::path m_folder;
};

} // namespace registry
