// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A new empty folder that is the working directory while the object lives and is removed with it.

#include "tests/platform/share/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace errors {

inline std::string contentOf(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

class WorkingFolder {
public:
    WorkingFolder() : m_before(std::filesystem::current_path()) { std::filesystem::current_path(path()); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() {
        std::error_code ignored;
        std::filesystem::current_path(m_before, ignored);
    }

    std::filesystem::path path() const { return m_folder.path(); }

private:
    share::testing::TemporaryFolder m_folder;
    std::filesystem::path m_before;
};

} // namespace errors
