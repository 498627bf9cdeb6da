// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Puts a new content in a file's place in one step that survives a crash and a power cut: written beside it,
// brought to the disk, renamed over it, the rename brought to the disk. Whoever reads sees the old content or
// the new one, whole. Mode and owner stay; a new file is for its user alone. The caller holds the file's
// lock, so that the name for the new content (`<file>.new`) is its own; one left by a crash is overwritten.

#include "platform/registry/SystemCalls.h"

#include <string>
#include <string_view>

namespace registry {

class FileReplacement {
public:
    // `path` is no symbolic link (resolveLinks).
    FileReplacement(SystemCalls& calls, std::string path);
    // Throws a StoreError; the old file then still stands, unless only the last step, bringing the rename to
    // the disk, failed.
    void replaceBy(std::string_view content);

private:
    void writeNew(std::string_view content);
    void keepOwnerAndMode(int file);

    SystemCalls& m_calls;
    std::string m_path;
    std::string m_newPath;
};

// The folder part of a path, "." without one.
std::string folderOf(const std::string& path);
// Where a chain of symbolic links ends, whether or not a file is there; a name that is no link as it is.
std::string resolveLinks(SystemCalls& calls, std::string path);
// Makes a folder and those above it, for their user alone; folders that are there stay as they are.
void makeFolders(SystemCalls& calls, const std::string& folder);
// Brings the names in a folder to the disk.
void syncFolder(SystemCalls& calls, const std::string& folder);

} // namespace registry
