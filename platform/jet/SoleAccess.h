// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A database opened for a change with nobody else in it, so that pages can be written without locks on
// single pages. Where the file system can deny all sharing, opening the file is enough; elsewhere it holds
// all user locks of the lock file. Given back by the destructor. Nothing else is open meanwhile; the file
// system must outlive it.

#include "platform/jet/DatabaseUser.h"
#include "platform/jet/SoleUserLock.h"
#include "platform/share/FileSystemObject.h"

#include <memory>
#include <string>

namespace jet {

class SoleAccess {
public:
    // Null when somebody else is in. Errors of opening, and kProviderFailure when locks do not work there.
    static std::unique_ptr<SoleAccess> tryOpen(share::FileSystemObject& files, const std::string& path,
                                               const DatabaseUser& self);
    // Throws kProviderFailure that names the user who is in, as far as the lock file tells.
    [[noreturn]] static void failInUse(share::FileSystemObject& files, const std::string& path);

    share::File& file() noexcept { return *m_file; }
    // The number whose commit word is ours (advanceCommitWord).
    std::size_t user() const noexcept { return m_lock ? SoleUserLock::kNumber : 0; }

private:
    std::unique_ptr<share::File> m_lockFile;
    std::unique_ptr<SoleUserLock> m_lock;
    std::unique_ptr<share::File> m_file;
};

} // namespace jet
