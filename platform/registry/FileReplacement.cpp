// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/FileReplacement.h"

#include "platform/registry/Descriptor.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <climits>

namespace registry {
namespace {

constexpr mode_t kPrivateFile = 0600;
constexpr mode_t kPrivateFolder = 0700;
constexpr mode_t kPermissions = 07777;
constexpr int kMostLinks = 40; // as many as the system itself follows

} // namespace

FileReplacement::FileReplacement(SystemCalls& calls, std::string path)
    : m_calls(calls), m_path(std::move(path)), m_newPath(m_path + ".new") {}

void FileReplacement::replaceBy(std::string_view content) {
    try {
        writeNew(content);
        if (m_calls.rename(m_newPath.c_str(), m_path.c_str()) != 0)
            throw StoreError::afterSystemCall(errno, "cannot replace", m_path);
    } catch (const StoreError&) {
        m_calls.unlink(m_newPath.c_str());
        throw;
    }
    syncFolder(m_calls, folderOf(m_path));
}

void FileReplacement::writeNew(std::string_view content) {
    Descriptor file =
        openFile(m_calls, m_newPath, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, kPrivateFile);
    file.writeAll(content);
    keepOwnerAndMode(file.file());
    file.sync();
    file.close();
}

void FileReplacement::keepOwnerAndMode(int file) {
    struct stat old {};
    mode_t mode = kPrivateFile;
    if (m_calls.stat(m_path.c_str(), &old) == 0) {
        mode = old.st_mode & kPermissions;
        // Only an administrator may give files away; for everybody else the file becomes their own.
        if (m_calls.fchown(file, old.st_uid, old.st_gid) != 0 && errno != EPERM)
            throw StoreError::afterSystemCall(errno, "cannot set the owner of", m_newPath);
    } else if (errno != ENOENT) {
        throw StoreError::afterSystemCall(errno, "cannot look at", m_path);
    }
    if (m_calls.fchmod(file, mode) != 0)
        throw StoreError::afterSystemCall(errno, "cannot set the permissions of", m_newPath);
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string resolveLinks(SystemCalls& calls, std::string path) {
    std::array<char, PATH_MAX> target{};
    for (int followed = 0; followed < kMostLinks; ++followed) {
        const ssize_t length = calls.readlink(path.c_str(), target.data(), target.size());
        if (length < 0 && (errno == EINVAL || errno == ENOENT || errno == ENOTDIR))
            return path; // no link, or nothing there yet
        if (length < 0)
            throw StoreError::afterSystemCall(errno, "cannot follow", path);
        const std::string next(target.data(), static_cast<std::size_t>(length));
        path = next.substr(0, 1) == "/" ? next : folderOf(path) + "/" + next;
    }
    throw StoreError::afterSystemCall(ELOOP, "cannot follow", path);
}

void makeFolders(SystemCalls& calls, const std::string& folder) {
    if (calls.mkdir(folder.c_str(), kPrivateFolder) != 0) {
        if (errno == EEXIST)
            return;
        if (errno != ENOENT || folderOf(folder) == folder)
            throw StoreError::afterSystemCall(errno, "cannot make the folder", folder);
        makeFolders(calls, folderOf(folder));
        if (calls.mkdir(folder.c_str(), kPrivateFolder) != 0 && errno != EEXIST)
            throw StoreError::afterSystemCall(errno, "cannot make the folder", folder);
    }
    syncFolder(calls, folderOf(folder));
}

void syncFolder(SystemCalls& calls, const std::string& folder) {
    Descriptor file = openFile(calls, folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    file.sync();
    file.close();
}

} // namespace registry
