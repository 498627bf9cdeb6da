// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The file-system object of the whole program: hands each question to the one that answers for the path, the
// folders of this machine or the servers themselves. A path that cannot be taken apart goes to the folders,
// which say what is wrong with it. What it is given must outlive it; one thread at a time.

#include "platform/share/FileSystemObject.h"
#include "platform/share/ShareResolver.h"

namespace share {

class RoutedFileSystemObject : public FileSystemObject {
public:
    RoutedFileSystemObject(ShareResolver resolver, FileSystemObject& folders, FileSystemObject& servers)
        : m_resolver(std::move(resolver)), m_folders(folders), m_servers(servers) {}

    bool FileExists(std::string_view path) override { return to(path).FileExists(path); }
    bool FolderExists(std::string_view path) override { return to(path).FolderExists(path); }
    std::vector<std::string> SubFolders(std::string_view path) override { return to(path).SubFolders(path); }
    void DeleteFile(std::string_view pattern, bool force) override { to(pattern).DeleteFile(pattern, force); }
    std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) override {
        return to(path).openFile(path, mode);
    }

private:
    FileSystemObject& to(std::string_view path) const;

    ShareResolver m_resolver;
    FileSystemObject& m_folders;
    FileSystemObject& m_servers;
};

} // namespace share
