// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The file-system object over servers themselves: nothing is mounted, every question goes to the server's own
// qmshare. Each thread has one of its own, with its own way to wait. Servers and waiter must outlive it and
// the files it opens.

#include "platform/share/FileSystemObject.h"
#include "platform/share/UncPath.h"
#include "platform/share/smb/FolderPage.h"
#include "platform/share/smb/SmbServers.h"

namespace share::smb {

class SmbFileSystemObject : public FileSystemObject {
public:
    SmbFileSystemObject(SmbServers& servers, Waiter& waiter) : m_servers(servers), m_waiter(waiter) {}

    bool FileExists(std::string_view path) override;
    bool FolderExists(std::string_view path) override;
    std::vector<std::string> SubFolders(std::string_view path) override;
    void DeleteFile(std::string_view pattern, bool force) override;
    std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) override;

private:
    Response ask(const UncPath& path, Request request, std::string_view what);
    bool exists(std::string_view path, bool isFolder);
    std::vector<FolderEntry> list(const UncPath& folder);
    std::vector<UncPath> matching(const UncPath& pattern);

    SmbServers& m_servers;
    Waiter& m_waiter;
};

} // namespace share::smb
