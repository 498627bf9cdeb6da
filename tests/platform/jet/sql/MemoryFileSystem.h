// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One database in memory behind the network name kDatabase. A test can look at how it is read, and change it
// between two reads as a server would.

#include "platform/basic/RuntimeError.h"
#include "platform/share/FileSystemObject.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace jet::test {

class MemoryFileSystem final : public share::FileSystemObject {
public:
    static constexpr std::string_view kDatabase = R"(\\srv\Quillamar_0$\MBX\7\qmLog.mdb)";

    std::vector<std::byte> bytes;
    int opened = 0;            // so far
    int open = 0;              // at the moment
    int reads = 0;             // so far
    std::size_t bytesRead = 0; // so far
    int failures = 0;          // so many openings to come fail
    std::int32_t failure = basic::kPathNotFound;
    std::function<void(int read)> beforeRead; // with the number of the read, from 1

    void setWord(std::size_t offset, std::uint16_t value);
    std::uint16_t word(std::size_t offset) const;

    bool FileExists(std::string_view path) override { return path == kDatabase; }
    bool FolderExists(std::string_view) override { return false; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view path, share::OpenMode mode) override;
};

} // namespace jet::test
