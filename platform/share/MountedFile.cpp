// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountedFile.h"

#include "platform/share/ConnectionLost.h"

#include <algorithm>
#include <vector>

namespace share {

// The file takes part in a call that was left behind, so no other one may touch it.
template <typename Result, typename Work>
Result MountedFile::call(Work work, MountCalls::Requests requests) {
    if (m_isLost)
        throw ConnectionLost("the mounted folder did not answer: " + m_name);
    try {
        return m_calls.run<Result>(m_mountPoint, requests, [file = m_file, work] { return work(*file); });
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kDeviceIoError && error.number() != basic::kPathNotFound)
            throw;
        m_isLost = true;
        throw ConnectionLost(error.description() + ": " + m_name);
    }
}

std::uint64_t MountedFile::size() {
    return call<std::uint64_t>([](File& file) { return file.size(); });
}

std::size_t MountedFile::read(std::uint64_t offset, std::span<std::byte> into) {
    using Bytes = std::vector<std::byte>;
    const auto bytes = call<Bytes>([offset, length = into.size()](File& file) {
        Bytes read(length);
        read.resize(file.read(offset, read));
        return read;
    });
    std::ranges::copy(bytes, into.begin());
    return bytes.size();
}

void MountedFile::write(std::uint64_t offset, std::span<const std::byte> from) {
    call<void>(
        [offset, bytes = std::vector(from.begin(), from.end())](File& file) { file.write(offset, bytes); });
}

void MountedFile::sync() {
    call<void>([](File& file) { file.sync(); }, MountCalls::Requests::Many);
}

bool MountedFile::lock(std::uint64_t offset, std::uint64_t length, LockKind kind) {
    return call<bool>([=](File& file) { return file.lock(offset, length, kind); });
}

void MountedFile::unlock(std::uint64_t offset, std::uint64_t length) {
    call<void>([=](File& file) { file.unlock(offset, length); });
}

} // namespace share
