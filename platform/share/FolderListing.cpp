// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/FolderListing.h"

#include "platform/basic/RuntimeError.h"
#include "platform/basic/TextCompare.h"
#include "platform/basic/Utf8.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>

namespace share {
namespace {

struct CloseFolder {
    void operator()(DIR* stream) const noexcept { ::closedir(stream); }
};

// Calls visit(name, type) for each entry; the type is one of DT_DIR and its like.
template <typename Visit>
void forEachName(const std::string& folder, Visit&& visit) {
    const std::unique_ptr<DIR, CloseFolder> stream(::opendir(folder.c_str()));
    if (!stream)
        throw basic::errorFromErrno(errno, "list", folder);
    std::size_t count = 0;
    errno = 0;
    while (const dirent* entry = ::readdir(stream.get())) {
        const std::string_view name(static_cast<const char*>(entry->d_name));
        if (++count > FolderListing::kMaximumNames)
            throw basic::RuntimeError(basic::kPathFileAccess, "list: " + folder + ": too many names");
        if (name != "." && name != ".." && basic::isValidUtf8(name))
            visit(name, entry->d_type);
        errno = 0;
    }
    if (errno != 0)
        throw basic::errorFromErrno(errno, "list", folder);
}

bool exists(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0;
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Most file systems tell the type along with the name. To ask for each of thousands of files over a slow line
// takes minutes.
bool isFolder(const std::string& folder, std::string_view name, unsigned char type) {
    if (type == DT_UNKNOWN || type == DT_LNK)
        return isFolder(std::string(folder).append("/").append(name));
    return type == DT_DIR;
}

} // namespace

std::vector<std::string> FolderListing::folders(const std::string& folder) {
    std::vector<std::string> found;
    forEachName(folder, [&](std::string_view name, unsigned char type) {
        if (isFolder(folder, name, type))
            found.emplace_back(name);
    });
    return found;
}

std::vector<std::string> FolderListing::files(const std::string& folder, const NamePattern& pattern) {
    std::vector<std::string> found;
    forEachName(folder, [&](std::string_view name, unsigned char type) {
        if (pattern.matches(name) && !isFolder(folder, name, type))
            found.emplace_back(name);
    });
    return found;
}

std::optional<std::string> FolderListing::find(const std::string& folder, const std::string& name) {
    std::string exact = folder + "/" + name;
    if (exists(exact))
        return exact;
    std::optional<std::string> best;
    forEachName(folder, [&](std::string_view candidate, unsigned char) {
        if (basic::equalText(candidate, name) && (!best || candidate < *best))
            best = candidate;
    });
    if (!best)
        return std::nullopt;
    return folder + "/" + *best;
}

} // namespace share
