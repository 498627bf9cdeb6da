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

// Opens the lock file and answers what `look` finds in it; nothing when there is none that we may open.
template <typename Look>
std::optional<DatabaseUser> lookInto(share::FileSystemObject& files, const std::string& path,
                                     share::OpenMode mode, Look&& look) {
    try {
        return look(*files.openFile(lockFilePath(path), mode));
    } catch (const basic::RuntimeError&) {
        return std::nullopt;
    }
}

// Where locks can be tried, the one whose lock is held; elsewhere the lock file's word is all there is.
std::string describeOther(share::FileSystemObject& files, const std::string& path) {
    if (const auto other = lookInto(files, path, share::OpenMode::ReadWrite, findOtherUser))
        return " by " + other->text();
    if (const auto other = lookInto(files, path, share::OpenMode::Read, readFirstEntry))
        return ", perhaps by " + other->text();
    return {};
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
    throw basic::RuntimeError(basic::kProviderFailure, path + ": the database is in use" +
                                                           describeOther(files, path) +
                                                           ", nothing was changed");
}

} // namespace jet
