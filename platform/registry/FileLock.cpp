// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/FileLock.h"

#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace registry {
namespace {

constexpr std::chrono::milliseconds kPause{20};
constexpr int kAttempts = 100;

} // namespace

FileLock::FileLock(SystemCalls& calls, const std::string& path)
    : m_file(openFile(calls, path, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)) {
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (calls.flock(m_file.file(), LOCK_EX | LOCK_NB) == 0)
            return;
        if (errno != EWOULDBLOCK && errno != EINTR)
            m_file.failed("cannot lock");
        calls.pause(kPause);
    }
    throw StoreError(kIoFailed, path + ": another program is still writing the settings");
}

} // namespace registry
