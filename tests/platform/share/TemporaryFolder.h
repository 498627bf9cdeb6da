// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A new empty folder for one test, removed with everything in it at the end.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace share::testing {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string path = (std::filesystem::temp_directory_path() / "qm-test-XXXXXX").string();
        if (::mkdtemp(path.data()) == nullptr)
            throw std::filesystem::filesystem_error("mkdtemp", path,
                                                    std::error_code(errno, std::generic_category()));
        m_path = path;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string path() const { return m_path.string(); }
    std::string path(std::string_view below) const { return (m_path / below).string(); }

    // Makes the folders on the way as well.
    std::string makeFile(std::string_view below, std::string_view content = "x") const {
        const std::filesystem::path file = m_path / below;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary);
        stream << content;
        EXPECT_TRUE(stream.flush().good()) << file;
        return file.string();
    }
    std::string makeFolder(std::string_view below) const {
        std::filesystem::create_directories(m_path / below);
        return path(below);
    }

private:
    std::filesystem::path m_path;
};

} // namespace share::testing
