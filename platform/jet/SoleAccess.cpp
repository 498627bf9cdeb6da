// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/SoleAccess.h"

#include "platform/basic/RuntimeError.h"
#include "platform/jet/LockFile.h"

#include <utility>

namespace jet {
namespace {

// Null when somebody has it open.
std::unique_ptr<share::File> openExclusive(share::FileSystemObject& files, const std::string& path) {
    try {
        return files.openFile(path, share::OpenMode::Exclusive);
    } catch (const basic::RuntimeError& error) {
        if (error.number() == basic::kFileAlreadyOpen)
            return nullptr;
        throw;
    }
}

std::optional<DatabaseUser> whoIsIn(share::FileSystemObject& files, const std::string& path) {
    try {
        return findOtherUser(*files.openFile(lockFilePath(path), share::OpenMode::ReadWrite));
    } catch (const basic::RuntimeError&) {
        return std::nullopt; // no lock file, or none that we may open
    }
}

} // namespace

std::unique_ptr<SoleAccess> SoleAccess::tryOpen(share::FileSystemObject& files, const std::string& path,
                                                const DatabaseUser& self) {
    auto access = std::make_unique<SoleAccess>();
    access->m_file = openExclusive(files, path);
    if (!access->m_file)
        return nullptr;
    if (access->m_file->excludesOthers())
        return access;
    access->m_file.reset();
    access->m_lockFile = openLockFile(files, path);
    access->m_lock = SoleUserLock::tryTake(*access->m_lockFile, self);
    if (!access->m_lock) {
        if (!canLock(*access->m_lockFile))
            throw basic::RuntimeError(basic::kProviderFailure,
                                      path +
                                          ": files cannot be locked there, so the database is not changed");
        return nullptr;
    }
    // Only now: whoever was in before may have put another file in its place.
    access->m_file = files.openFile(path, share::OpenMode::ReadWrite);
    return access;
}

void SoleAccess::failInUse(share::FileSystemObject& files, const std::string& path) {
    const std::optional<DatabaseUser> other = whoIsIn(files, path);
    throw basic::RuntimeError(basic::kProviderFailure, path + ": the database is in use" +
                                                           (other ? " by " + other->text() : std::string()) +
                                                           ", nothing was changed");
}

} // namespace jet
