// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The share of the server srv01 as a folder of this machine, reached by the real file-system object, with a
// note of every name that was asked for and of every file that was opened.

#include "platform/share/LocalFileSystemObject.h"

#include <optional>
#include <string>
#include <vector>

namespace data {

class NotedFiles final : public share::FileSystemObject {
public:
    explicit NotedFiles(std::string folder)
        : m_files(share::ShareResolver(
              [folder = std::move(folder)](std::string_view server) {
                  return server == "srv01" ? std::optional(folder) : std::nullopt;
              },
              [] { return std::string(); })) {}

    bool FileExists(std::string_view path) override {
        asked.emplace_back(path);
        return m_files.FileExists(path);
    }
    bool FolderExists(std::string_view path) override { return m_files.FolderExists(path); }
    std::vector<std::string> SubFolders(std::string_view path) override { return m_files.SubFolders(path); }
    void DeleteFile(std::string_view pattern, bool force) override { m_files.DeleteFile(pattern, force); }
    std::unique_ptr<share::File> openFile(std::string_view path, share::OpenMode mode) override {
        opened.emplace_back(path);
        return m_files.openFile(path, mode);
    }

    std::vector<std::string> asked;
    std::vector<std::string> opened;

private:
    share::LocalFileSystemObject m_files;
};

} // namespace data
