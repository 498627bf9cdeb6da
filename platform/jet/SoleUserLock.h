// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Has a database to itself among those who share it: an exclusive lock on all user bytes, which lie far
// beyond the end of the lock file beside the database (.ldb), and in that file an entry with the names of
// computer and user. While it is held nobody else can enter, and it is not given while somebody is in:
// whoever writes without locks on single pages needs that. Held from construction to destruction. The lock
// file stays, as it does after every crash: an entry without its lock means nothing. Layout:
// docs/jet4-format.md, "Lock file".

#include "platform/jet/DatabaseUser.h"
#include "platform/share/File.h"

#include <cstddef>
#include <memory>

namespace jet {

class SoleUserLock {
public:
    // The names of `self` are cut to what an entry holds. Null when somebody else is in, or the file cannot
    // lock. The file must outlive the lock.
    static std::unique_ptr<SoleUserLock> tryTake(share::File& file, const DatabaseUser& self);
    ~SoleUserLock();
    SoleUserLock(const SoleUserLock&) = delete;
    SoleUserLock& operator=(const SoleUserLock&) = delete;

    // The user number whose commit word is ours (advanceCommitWord).
    static constexpr std::size_t kNumber = 1;

private:
    explicit SoleUserLock(share::File& file) : m_file(file) {}

    share::File& m_file;
};

} // namespace jet
