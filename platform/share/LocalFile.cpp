// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/LocalFile.h"

#include "platform/basic/RuntimeError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

namespace share {
namespace {

constexpr mode_t kNewFileMode = 0666; // the user's umask takes its part away

// Without O_NONBLOCK, opening a pipe would wait for its other end; for a regular file the flag means nothing.
int flagsFor(OpenMode mode) {
    constexpr int kAlways = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    switch (mode) {
    case OpenMode::ReadWrite:
    case OpenMode::Exclusive: // there is no sharing to deny: excludesOthers() stays false
        return kAlways | O_RDWR;
    case OpenMode::Create:
        return kAlways | O_RDWR | O_CREAT | O_EXCL;
    case OpenMode::Read:
        break;
    }
    return kAlways | O_RDONLY;
}

int openRetrying(const std::string& path, int flags) {
    int descriptor = -1;
    do
        descriptor = ::open(path.c_str(), flags, kNewFileMode);
    while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

off_t checkedOffset(std::uint64_t offset, std::uint64_t length, const std::string& name) {
    constexpr auto kEnd = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());
    if (offset > kEnd || length > kEnd - offset)
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "a range beyond any file: " + name);
    return static_cast<off_t>(offset);
}

} // namespace

std::unique_ptr<LocalFile> LocalFile::open(const std::string& path, OpenMode mode, std::string shownName,
                                           MountInfo mounts) {
    if (path.find('\0') != std::string::npos)
        throw basic::RuntimeError(basic::kPathFileAccess, "open: a file name with a zero character");
    FileDescriptor descriptor(openRetrying(path, flagsFor(mode)));
    if (!descriptor.isOpen())
        throw basic::errorFromErrno(errno, "open", shownName);
    struct stat status {};
    if (::fstat(descriptor.get(), &status) != 0)
        throw basic::errorFromErrno(errno, "open", shownName);
    if (S_ISDIR(status.st_mode))
        throw basic::errorFromErrno(EISDIR, "open", shownName);
    if (!S_ISREG(status.st_mode))
        throw basic::RuntimeError(basic::kPathFileAccess, "open: " + shownName + ": Not a regular file");
    return std::unique_ptr<LocalFile>(
        new LocalFile(std::move(descriptor), std::move(shownName), std::move(mounts)));
}

std::uint64_t LocalFile::size() {
    struct stat status {};
    if (::fstat(m_descriptor.get(), &status) != 0)
        throw basic::errorFromErrno(errno, "size", m_name);
    return static_cast<std::uint64_t>(status.st_size);
}

std::size_t LocalFile::read(std::uint64_t offset, std::span<std::byte> into) {
    const off_t start = checkedOffset(offset, into.size(), m_name);
    std::size_t done = 0;
    while (done < into.size()) {
        const ssize_t count = ::pread(m_descriptor.get(), into.data() + done, into.size() - done,
                                      start + static_cast<off_t>(done));
        if (count == 0)
            break;
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            throw basic::errorFromErrno(errno, "read", m_name);
    }
    return done;
}

void LocalFile::write(std::uint64_t offset, std::span<const std::byte> from) {
    const off_t start = checkedOffset(offset, from.size(), m_name);
    std::size_t done = 0;
    while (done < from.size()) {
        const ssize_t count = ::pwrite(m_descriptor.get(), from.data() + done, from.size() - done,
                                       start + static_cast<off_t>(done));
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            throw basic::errorFromErrno(count == 0 ? ENOSPC : errno, "write", m_name);
    }
}

void LocalFile::sync() {
    if (::fdatasync(m_descriptor.get()) != 0)
        throw basic::errorFromErrno(errno, "sync", m_name);
}

bool LocalFile::lock(std::uint64_t offset, std::uint64_t length, LockKind kind) {
    if (!locksAreShared())
        return false;
    const int failure = setLock(kind == LockKind::Shared ? F_RDLCK : F_WRLCK, offset, length);
    switch (failure) {
    case 0:
        return true;
    case EACCES:
    case EAGAIN:
    case EINVAL: // a file system without locks
    case ENOLCK:
    case ENOSYS:
    case EOPNOTSUPP:
        return false;
    default:
        throw basic::errorFromErrno(failure, "lock", m_name);
    }
}

bool LocalFile::locksAreShared() {
    if (!m_locksAreShared) {
        struct stat status {};
        if (::fstat(m_descriptor.get(), &status) != 0)
            throw basic::errorFromErrno(errno, "lock", m_name);
        m_locksAreShared = !m_mounts || MountTable(m_mounts()).locksAreShared(status.st_dev);
    }
    return *m_locksAreShared;
}

void LocalFile::unlock(std::uint64_t offset, std::uint64_t length) {
    if (const int failure = setLock(F_UNLCK, offset, length); failure != 0)
        throw basic::errorFromErrno(failure, "unlock", m_name);
}

int LocalFile::setLock(short type, std::uint64_t offset, std::uint64_t length) {
    if (length == 0) // to the operating system, no length means everything up to the end
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "a lock of no bytes: " + m_name);
    struct flock range {};
    range.l_type = type;
    range.l_whence = SEEK_SET;
    range.l_start = checkedOffset(offset, length, m_name);
    range.l_len = static_cast<off_t>(length);
    while (::fcntl(m_descriptor.get(), F_OFD_SETLK, &range) != 0)
        if (errno != EINTR)
            return errno;
    return 0;
}

} // namespace share
