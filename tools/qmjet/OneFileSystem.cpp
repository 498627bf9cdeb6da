// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmjet/OneFileSystem.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/LocalFile.h"

#include <filesystem>

namespace qmjet {

bool OneFileSystem::FileExists(std::string_view path) {
    return std::filesystem::exists(placeOf(path));
}

bool OneFileSystem::FolderExists(std::string_view) {
    return false;
}

std::vector<std::string> OneFileSystem::SubFolders(std::string_view) {
    return {};
}

void OneFileSystem::DeleteFile(std::string_view, bool) {
    throw basic::RuntimeError(basic::kPermissionDenied);
}

std::unique_ptr<share::File> OneFileSystem::openFile(std::string_view path, share::OpenMode mode) {
    return share::LocalFile::open(placeOf(path), mode);
}

std::string OneFileSystem::placeOf(std::string_view path) const {
    if (path == kDatabase)
        return m_path;
    return std::filesystem::path(m_path).replace_extension(".ldb").string();
}

} // namespace qmjet
