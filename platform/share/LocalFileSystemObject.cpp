// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/LocalFileSystemObject.h"

#include "platform/basic/RuntimeError.h"
#include "platform/share/FirstFailure.h"
#include "platform/share/FolderListing.h"
#include "platform/share/LocalFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace share {
namespace {

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

bool isWritable(const std::string& path, const struct stat& status) {
    return (status.st_mode & kAnyWrite) != 0 && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

void deleteOne(const std::string& path, const std::string& shownName, bool force) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        throw basic::errorFromErrno(errno, "delete", shownName);
    if (!force && !S_ISLNK(status.st_mode) && !isWritable(path, status))
        throw basic::errorFromErrno(EACCES, "delete", shownName);
    if (::unlink(path.c_str()) != 0)
        throw basic::errorFromErrno(errno, "delete", shownName);
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

// Names that the pattern stands for. Without a wildcard it is one name, of which two that differ in case
// only must not both go.
std::vector<std::string> matching(const std::string& folder, const std::string& pattern) {
    if (pattern.find_first_of("*?") == std::string::npos) {
        const std::optional<std::string> found = FolderListing::find(folder, pattern);
        if (!found || isFolder(*found))
            return {};
        return {found->substr(folder.size() + 1)};
    }
    return FolderListing::files(folder, NamePattern(pattern));
}

} // namespace

bool LocalFileSystemObject::FileExists(std::string_view path) {
    const std::optional<std::string> place = reachable(path);
    return place && isFile(*place);
}

bool LocalFileSystemObject::FolderExists(std::string_view path) {
    const std::optional<std::string> place = reachable(path);
    return place && isFolder(*place);
}

std::vector<std::string> LocalFileSystemObject::SubFolders(std::string_view path) {
    return FolderListing::folders(existingFolder(UncPath::parse(path)));
}

void LocalFileSystemObject::DeleteFile(std::string_view pattern, bool force) {
    const UncPath path = UncPath::parsePattern(pattern);
    tryEach(MatchingFiles(path), [&](const std::string& name) { DeleteMatch(path, name, force); });
}

std::vector<std::string> LocalFileSystemObject::MatchingFiles(const UncPath& pattern) const {
    std::vector<std::string> names = matching(existingFolder(pattern.parent()), pattern.components().back());
    if (names.empty())
        throw basic::errorFromErrno(ENOENT, "delete", pattern.text());
    return names;
}

void LocalFileSystemObject::DeleteMatch(const UncPath& pattern, const std::string& name, bool force) const {
    const UncPath parent = pattern.parent();
    deleteOne(existingFolder(parent) + "/" + name, parent.text() + "\\" + name, force);
}

std::unique_ptr<File> LocalFileSystemObject::openFile(std::string_view path, OpenMode mode) {
    const UncPath name = UncPath::parse(path);
    return LocalFile::open(placeFor(name, mode), mode, name.text(), m_resolver.mountInfo());
}

std::string LocalFileSystemObject::placeFor(const UncPath& path, OpenMode mode) const {
    if (mode != OpenMode::Create)
        return existing(path);
    const std::string folder = existingFolder(path.parent());
    // On the server a name in other case is the same name, so it must be in the way here as well.
    return FolderListing::find(folder, path.components().back())
        .value_or(folder + "/" + path.components().back());
}

std::string LocalFileSystemObject::existing(const UncPath& path) const {
    std::optional<std::string> place = find(path);
    if (!place)
        throw basic::errorFromErrno(ENOENT, "find", path.text());
    return std::move(*place);
}

std::string LocalFileSystemObject::existingFolder(const UncPath& path) const {
    std::optional<std::string> place = find(path);
    if (!place || !isFolder(*place))
        throw basic::errorFromErrno(ENOTDIR, "find", path.text());
    return std::move(*place);
}

std::optional<std::string> LocalFileSystemObject::find(const UncPath& path) const {
    return find(m_resolver.resolve(path), path);
}

// What cannot be looked at counts as not there. Settings that cannot be read are another matter: they say
// nothing about the file, and the user must hear of them.
std::optional<std::string> LocalFileSystemObject::reachable(std::string_view path) const {
    std::optional<UncPath> name;
    try {
        name = UncPath::parse(path);
    } catch (const basic::RuntimeError&) {
        return std::nullopt;
    }
    const Route route = m_resolver.resolve(*name);
    try {
        return find(route, *name);
    } catch (const basic::RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<std::string> LocalFileSystemObject::find(const Route& route, const UncPath& path) {
    if (route.way != Way::Folder)
        throw basic::RuntimeError(basic::kPathNotFound,
                                  "no folder of this machine stands for " + path.text());
    std::string place = route.folder;
    for (const std::string& component : route.components) {
        if (!isFolder(place))
            throw basic::RuntimeError(basic::kPathNotFound,
                                      "a file in place of a folder on the way to " + path.text());
        std::optional<std::string> next = FolderListing::find(place, component);
        if (!next && &component != &route.components.back())
            throw basic::RuntimeError(basic::kPathNotFound,
                                      "no folder " + component + " on the way to " + path.text());
        if (!next)
            return std::nullopt;
        place = std::move(*next);
    }
    return place;
}

} // namespace share
