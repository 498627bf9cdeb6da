// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryFile.h"

#include "platform/registry/Descriptor.h"
#include "platform/registry/FileLock.h"
#include "platform/registry/FileReplacement.h"
#include "platform/registry/Limits.h"
#include "platform/registry/RegistryTextReader.h"
#include "platform/registry/RegistryTextWriter.h"
#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace registry {
namespace {

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

bool isMissing(int errnoValue) noexcept {
    return errnoValue == ENOENT || errnoValue == ENOTDIR;
}

// The tree as text, proven to read back as the same tree: what cannot be read again is never written.
std::string checkedText(const Key& tree, const std::string& path) {
    std::string text = RegistryTextWriter().write(tree);
    if (!(readRegistryText(text, path) == tree))
        throw StoreError(kIoFailed, path + ": the settings cannot be written in the file's format");
    return text;
}

} // namespace

const Key& RegistryFile::tree() {
    const std::string path = currentPath();
    if (path != m_treePath || !(stampNow(path) == m_treeStamp)) {
        m_treePath.clear(); // a failed reading leaves no tree to be trusted
        m_tree = load(path, m_treeStamp);
        m_treePath = path;
    }
    return m_tree;
}

Key RegistryFile::freshTree() {
    Stamp stamp;
    return load(currentPath(), stamp);
}

void RegistryFile::change(const std::vector<Operation>& operations) {
    const std::string path = resolveLinks(m_calls, currentPath());
    makeFolders(m_calls, folderOf(path));
    const FileLock lock(m_calls, path + ".lock");
    Stamp stamp;
    Key changed = load(path, stamp);
    for (const Operation& operation : operations)
        apply(operation, changed);
    const std::string text = checkedText(changed, path);
    m_treePath.clear();
    FileReplacement(m_calls, path).replaceBy(text);
}

bool RegistryFile::isWritable() {
    return !m_candidates.empty() && m_calls.access(currentPath().c_str(), W_OK) == 0;
}

std::string RegistryFile::currentPath() {
    if (m_candidates.empty())
        throw StoreError(kIoFailed, "there is no folder for the settings: neither a home nor a configuration "
                                    "folder is known");
    struct stat status {};
    for (const std::string& candidate : m_candidates) {
        if (m_candidates.size() > 1 && m_calls.stat(candidate.c_str(), &status) == 0)
            return candidate;
    }
    return m_candidates.front();
}

RegistryFile::Stamp RegistryFile::stampOf(const struct stat& status) {
    return {true,
            status.st_dev,
            status.st_ino,
            status.st_size,
            nanoseconds(status.st_mtim),
            nanoseconds(status.st_ctim)};
}

RegistryFile::Stamp RegistryFile::stampNow(const std::string& path) {
    struct stat status {};
    if (m_calls.stat(path.c_str(), &status) == 0)
        return stampOf(status);
    if (!isMissing(errno))
        throw StoreError::afterSystemCall(errno, "cannot look at", path);
    return {};
}

// Not to be held up by a name that is a pipe or a device, hence the flag and the look at the kind.
Key RegistryFile::load(const std::string& path, Stamp& stamp) {
    stamp = {};
    const int opened = m_calls.open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK, 0);
    if (opened < 0 && isMissing(errno))
        return {};
    if (opened < 0)
        throw StoreError::afterSystemCall(errno, "cannot open", path);
    const Descriptor file(m_calls, opened, path);
    const struct stat status = file.status();
    if (!S_ISREG(status.st_mode))
        throw StoreError(kIoFailed, path + ": this is no file");
    Key tree = readRegistryText(file.readAll(kMaxFileSize), path);
    stamp = stampOf(status);
    return tree;
}

} // namespace registry
