// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The system's file-system object: existence, sub-folders, deletion by pattern, and files for random access.
// Paths are UNC names (\\server\share\folder\file) in UTF-8; what stands behind a server's share (a mapped
// folder, a mounted one, the server itself) is settled below this interface and seen by nobody above it.
// Names compare without case, as on the server. Used from one thread at a time.

#include "platform/share/File.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace share {

class FileSystemObject {
public:
    FileSystemObject() = default;
    FileSystemObject(const FileSystemObject&) = delete;
    FileSystemObject& operator=(const FileSystemObject&) = delete;
    virtual ~FileSystemObject() = default;

    // False for everything that cannot be reached, whatever the reason; never throws for a bad name.
    virtual bool FileExists(std::string_view path) = 0;
    virtual bool FolderExists(std::string_view path) = 0;
    // Names of the folders in `path`, in the order of the file system.
    virtual std::vector<std::string> SubFolders(std::string_view path) = 0;
    // Deletes the files of the last component's pattern (`*` and `?`, without case) in its folder. Files
    // without write permission count as read-only and go only with `force`. One that cannot go does not keep
    // the others; the first failure is thrown after all were tried. No match at all is error 53.
    virtual void DeleteFile(std::string_view pattern, bool force) = 0;
    virtual std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) = 0;
};

} // namespace share
