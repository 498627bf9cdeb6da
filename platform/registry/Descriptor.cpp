// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/Descriptor.h"

#include "platform/registry/ResultCodes.h"
#include "platform/registry/StoreError.h"

#include <array>
#include <cerrno>

namespace registry {

Descriptor::~Descriptor() {
    if (m_file >= 0)
        m_calls.close(m_file);
}

struct stat Descriptor::status() const {
    struct stat found {};
    if (m_calls.fstat(m_file, &found) != 0)
        failed("cannot look at");
    return found;
}

std::string Descriptor::readAll(std::size_t most) const {
    std::string bytes;
    std::array<char, 16384> part{};
    for (;;) {
        const ssize_t count = m_calls.read(m_file, part.data(), part.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failed("cannot read");
        if (count == 0)
            return bytes;
        bytes.append(part.data(), static_cast<std::size_t>(count));
        if (bytes.size() > most)
            throw StoreError(kCorrupt, m_path + ": the file is too big");
    }
}

void Descriptor::writeAll(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = m_calls.write(m_file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failed("cannot write");
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void Descriptor::sync() const {
    if (m_calls.fsync(m_file) != 0)
        failed("cannot write to the disk");
}

void Descriptor::close() {
    const int file = m_file;
    m_file = -1;
    if (m_calls.close(file) != 0)
        failed("cannot close");
}

void Descriptor::failed(std::string_view what) const {
    throw StoreError::afterSystemCall(errno, what, m_path);
}

Descriptor openFile(SystemCalls& calls, const std::string& path, int flags, mode_t mode) {
    const int file = calls.open(path.c_str(), flags, mode);
    if (file < 0)
        throw StoreError::afterSystemCall(errno, "cannot open", path);
    return {calls, file, path};
}

} // namespace registry
