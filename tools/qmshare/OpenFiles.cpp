// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/qmshare/OpenFiles.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace qmshare {
namespace {

constexpr mode_t kNewFileMode = 0666;

int flagsFor(share::OpenMode mode) {
    switch (mode) {
    case share::OpenMode::ReadWrite:
    case share::OpenMode::Exclusive:
        return O_RDWR;
    case share::OpenMode::Create:
        return O_RDWR | O_CREAT | O_EXCL;
    case share::OpenMode::Read:
        break;
    }
    return O_RDONLY;
}

} // namespace

OpenFiles::~OpenFiles() {
    while (!m_files.empty())
        close(m_files.begin()->first);
}

int OpenFiles::open(std::uint32_t handle, const std::string& url, share::OpenMode mode) {
    if (has(handle) || m_files.size() >= kMaximum) {
        errno = EMFILE;
        return -1;
    }
    // The protocol's library knows no locks on parts of a file: who writes has the file alone.
    ::smbc_setOptionOpenShareMode(m_context.get(), mode == share::OpenMode::Read ? SMBC_SHAREMODE_DENY_NONE
                                                                                 : SMBC_SHAREMODE_DENY_ALL);
    SMBCFILE* file =
        ::smbc_getFunctionOpen(m_context.get())(m_context.get(), url.c_str(), flagsFor(mode), kNewFileMode);
    if (file == nullptr)
        return -1;
    m_files[handle] = file;
    return 0;
}

// The number is free again whatever the server says.
int OpenFiles::close(std::uint32_t handle) {
    SMBCFILE* file = m_files.at(handle);
    m_files.erase(handle);
    return ::smbc_getFunctionClose(m_context.get())(m_context.get(), file);
}

ssize_t OpenFiles::read(std::uint32_t handle, std::uint64_t offset, std::span<std::byte> into) {
    SMBCFILE* file = m_files.at(handle);
    if (!seek(file, offset))
        return -1;
    std::size_t done = 0;
    while (done < into.size()) {
        const ssize_t count = ::smbc_getFunctionRead(m_context.get())(m_context.get(), file,
                                                                      into.data() + done, into.size() - done);
        if (count < 0)
            return -1;
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

int OpenFiles::write(std::uint32_t handle, std::uint64_t offset, std::span<const std::byte> from) {
    SMBCFILE* file = m_files.at(handle);
    if (!seek(file, offset))
        return -1;
    for (std::size_t done = 0; done < from.size();) {
        const ssize_t count = ::smbc_getFunctionWrite(m_context.get())(
            m_context.get(), file, from.data() + done, from.size() - done);
        if (count <= 0) {
            errno = count == 0 ? ENOSPC : errno;
            return -1;
        }
        done += static_cast<std::size_t>(count);
    }
    return 0;
}

std::int64_t OpenFiles::size(std::uint32_t handle) {
    struct stat status {};
    if (::smbc_getFunctionFstat(m_context.get())(m_context.get(), m_files.at(handle), &status) != 0) {
        if (errno == EINVAL) // the library's word for a server that did not answer
            errno = ECONNRESET;
        return -1;
    }
    return status.st_size;
}

bool OpenFiles::seek(SMBCFILE* file, std::uint64_t offset) {
    const auto place = static_cast<off_t>(offset);
    return ::smbc_getFunctionLseek(m_context.get())(m_context.get(), file, place, SEEK_SET) == place;
}

} // namespace qmshare
