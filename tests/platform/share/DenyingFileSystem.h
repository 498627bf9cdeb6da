// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Wraps another file system as one whose server can deny all sharing, and refuses to open files as such a
// server does while somebody else has them open.

#include "platform/share/FileSystemObject.h"

#include <memory>
#include <string>
#include <vector>

namespace share::testing {

class DenyingFileSystem final : public FileSystemObject {
public:
    explicit DenyingFileSystem(FileSystemObject& behind) : m_behind(behind) {}

    bool canDeny = true;         // false: it can neither deny sharing nor lock, as some mounts
    int exclusiveRefusals = 0;   // of the next ones to open a file exclusively
    int readRefusals = 0;        // of the next other ones
    std::string onlyTheDatabase; // what is refused if this is not empty
    std::vector<std::string> opened;

    bool FileExists(std::string_view path) override { return m_behind.FileExists(path); }
    bool FolderExists(std::string_view path) override { return m_behind.FolderExists(path); }
    std::vector<std::string> SubFolders(std::string_view path) override { return m_behind.SubFolders(path); }
    void DeleteFile(std::string_view pattern, bool force) override { m_behind.DeleteFile(pattern, force); }
    std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) override;

private:
    FileSystemObject& m_behind;
};

} // namespace share::testing
