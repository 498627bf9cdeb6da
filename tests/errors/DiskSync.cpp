// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/errors/DiskSync.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

namespace {

errors::DiskSync* watcher = nullptr;

int written(int descriptor) {
    return static_cast<int>(::syscall(SYS_fdatasync, descriptor));
}

} // namespace

int fdatasync(int descriptor) {
    return watcher == nullptr ? written(descriptor) : watcher->note(descriptor);
}

namespace errors {

DiskSync::DiskSync(Outcome outcome) : m_outcome(outcome) {
    watcher = this;
}

DiskSync::~DiskSync() {
    watcher = nullptr;
}

int DiskSync::note(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) == 0)
        m_sizes.push_back(static_cast<std::size_t>(status.st_size));
    if (m_outcome == Outcome::Works)
        return written(descriptor);
    errno = EIO;
    return -1;
}

} // namespace errors
