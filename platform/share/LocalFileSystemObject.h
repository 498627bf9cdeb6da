// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The file-system object over folders of this machine: those mapped by the administrator and mounted shares.
// A path for which neither exists is as unreachable as a server that is switched off: false, or error 76.
// What a path names below the folder is checked by UncPath and cannot leave it; symbolic links are followed,
// because whoever made them there arranged the folder.

#include "platform/share/FileSystemObject.h"
#include "platform/share/ShareResolver.h"

namespace share {

class LocalFileSystemObject final : public FileSystemObject {
public:
    explicit LocalFileSystemObject(ShareResolver resolver) : m_resolver(std::move(resolver)) {}

    bool FileExists(std::string_view path) override;
    bool FolderExists(std::string_view path) override;
    std::vector<std::string> SubFolders(std::string_view path) override;
    void DeleteFile(std::string_view pattern, bool force) override;
    std::unique_ptr<File> openFile(std::string_view path, OpenMode mode) override;

    // The two steps of DeleteFile, for whoever takes them one by one: the names of the files that the pattern
    // stands for, error 53 without any, and the deletion of one of them.
    std::vector<std::string> MatchingFiles(const UncPath& pattern) const;
    void DeleteMatch(const UncPath& pattern, const std::string& name, bool force) const;

private:
    // The name of the operating system for what a path names; error 53 for a missing file, 76 for a missing
    // folder.
    std::string existing(const UncPath& path) const;
    std::string existingFolder(const UncPath& path) const;
    // Nothing when the last component is missing, error 76 when one on the way is.
    std::optional<std::string> find(const UncPath& path) const;
    static std::optional<std::string> find(const Route& route, const UncPath& path);
    std::optional<std::string> reachable(std::string_view path) const;
    std::string placeFor(const UncPath& path, OpenMode mode) const;

    ShareResolver m_resolver;
};

} // namespace share
