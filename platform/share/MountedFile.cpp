// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MountedFile.h"

#include "platform/share/ConnectionLost.h"

#include <algorithm>
#include <vector>

namespace share {
namespace {

// What a slow line brings within the deadline of one call.
constexpr std::size_t kPiece = 65'536;

} // namespace

template <typename Result, typename Work>
Result MountedFile::call(Work work, MountCalls::Requests requests) {
    if (m_isLost)
        throw ConnectionLost("the mounted folder did not answer: " + m_name);
    try {
        return m_calls.run<Result>(m_mount, requests, [file = m_file, work] { return work(*file); });
    } catch (const CallLeftBehind& error) {
        m_isLost = true;
        throw ConnectionLost(error.description() + ": " + m_name);
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kDeviceIoError && error.number() != basic::kPathNotFound)
            throw;
        throw ConnectionLost(error.description() + ": " + m_name);
    }
}

std::uint64_t MountedFile::size() {
    return call<std::uint64_t>([](File& file) { return file.size(); });
}

std::size_t MountedFile::read(std::uint64_t offset, std::span<std::byte> into) {
    std::size_t done = 0;
    while (done < into.size()) {
        const std::size_t asked = std::min(into.size() - done, kPiece);
        const std::size_t got = readPiece(offset + done, into.subspan(done, asked));
        done += got;
        if (got < asked)
            break;
    }
    return done;
}

std::size_t MountedFile::readPiece(std::uint64_t offset, std::span<std::byte> into) {
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
    for (std::size_t done = 0; done < from.size();) {
        const auto piece = from.subspan(done, std::min(from.size() - done, kPiece));
        call<void>([at = offset + done, bytes = std::vector(piece.begin(), piece.end())](File& file) {
            file.write(at, bytes);
        });
        done += piece.size();
    }
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
