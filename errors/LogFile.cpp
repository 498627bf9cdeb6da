// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/LogFile.h"

#include "platform/basic/RuntimeError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace errors {
namespace {

// O_NONBLOCK: opening a pipe that nobody reads fails instead of waiting.
int openForAppending(const std::string& path) {
    constexpr int kFlags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;
    const int descriptor = ::open(path.c_str(), kFlags, kOwnerOnly);
    if (descriptor < 0)
        throw basic::errorFromErrno(errno, "open", path);
    return descriptor;
}

bool isRegular(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

LogFile::LogFile(std::string path) : m_path(std::move(path)), m_descriptor(openForAppending(m_path)) {
    if (isRegular(m_descriptor))
        return;
    ::close(m_descriptor);
    throw basic::RuntimeError(basic::kPathFileAccess, "open: " + m_path + ": not a regular file");
}

LogFile::~LogFile() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void LogFile::append(std::string_view text) {
    ssize_t written = -1;
    do {
        written = ::write(m_descriptor, text.data(), text.size());
    } while (written < 0 && errno == EINTR);
    if (written < 0)
        throw basic::errorFromErrno(errno, "write", m_path);
    // The rest is not sent after it: another client's record may stand in between by now.
    if (static_cast<std::size_t>(written) != text.size())
        throw basic::RuntimeError(basic::kDiskFull, "write: " + m_path + ": only a part was written");
    if (::fdatasync(m_descriptor) != 0)
        throw basic::errorFromErrno(errno, "sync", m_path);
}

} // namespace errors
