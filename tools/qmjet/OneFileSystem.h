// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file system in which one file of this machine is the only database there is, so that a connection can
// use it by the network name kDatabase; every other name is that of its lock file.

#include "platform/share/FileSystemObject.h"

#include <string>

namespace qmjet {

class OneFileSystem final : public share::FileSystemObject {
public:
    static constexpr std::string_view kDatabase = "\\\\localhost\\file\\database";
    static constexpr std::string_view kConnection =
        "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=\\\\localhost\\file\\database";

    explicit OneFileSystem(std::string path) : m_path(std::move(path)) {}

    bool FileExists(std::string_view path) override;
    bool FolderExists(std::string_view path) override;
    std::vector<std::string> SubFolders(std::string_view path) override;
    void DeleteFile(std::string_view pattern, bool force) override;
    std::unique_ptr<share::File> openFile(std::string_view path, share::OpenMode mode) override;

private:
    // The file itself, or the lock file beside it.
    std::string placeOf(std::string_view path) const;

    std::string m_path;
};

} // namespace qmjet
