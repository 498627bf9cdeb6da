// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/SmbFile.h"

#include "platform/share/ConnectionLost.h"
#include "platform/share/smb/Failure.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace share::smb {
namespace {

// No server takes an offset beyond it, and a sum with a length cannot overflow.
constexpr std::uint64_t kLargestOffset = std::numeric_limits<std::int64_t>::max();

void checkRange(std::uint64_t offset, std::size_t length, const std::string& path) {
    if (offset > kLargestOffset || length > kLargestOffset - offset)
        throw basic::RuntimeError(basic::kInvalidProcedureCall, "a range beyond any file: " + path);
}

} // namespace

std::unique_ptr<SmbFile> SmbFile::open(SmbServer& server, Waiter& waiter, std::string path, OpenMode mode) {
    std::unique_ptr<SmbFile> file(new SmbFile(server, waiter, std::move(path), mode != OpenMode::Read));
    const std::uint32_t handle = server.newHandle();
    server.call(
        {.verb = Verb::Open, .mode = static_cast<std::uint8_t>(mode), .handle = handle, .path = file->m_path},
        waiter, "open");
    file->m_handle = handle;
    return file;
}

SmbFile::~SmbFile() {
    if (m_handle == 0)
        return;
    try {
        call({.verb = Verb::Close}, "close");
    } catch (const std::exception&) { // the server closes it with the connection
    }
}

std::uint64_t SmbFile::size() {
    return call({.verb = Verb::Size}, "size").number;
}

std::size_t SmbFile::read(std::uint64_t offset, std::span<std::byte> into) {
    checkRange(offset, into.size(), m_path);
    std::size_t done = 0;
    while (done < into.size()) {
        const std::size_t asked = std::min(into.size() - done, kMaximumDataBytes);
        const std::size_t got = readPiece(offset + done, into.subspan(done, asked));
        done += got;
        if (got < asked)
            break;
    }
    return done;
}

std::size_t SmbFile::readPiece(std::uint64_t offset, std::span<std::byte> into) {
    const Response response = call(
        {.verb = Verb::Read, .length = static_cast<std::uint32_t>(into.size()), .offset = offset}, "read");
    if (response.data.size() > into.size())
        throw basic::RuntimeError(basic::kInternalError, "read: " + m_path + ": more than was asked for");
    std::ranges::copy(response.data, into.begin());
    return response.data.size();
}

void SmbFile::write(std::uint64_t offset, std::span<const std::byte> from) {
    checkRange(offset, from.size(), m_path);
    for (std::size_t done = 0; done < from.size();) {
        const auto piece = from.subspan(done, std::min(from.size() - done, kMaximumDataBytes));
        call({.verb = Verb::Write, .offset = offset + done, .data = {piece.begin(), piece.end()}}, "write");
        done += piece.size();
    }
}

// Once the connection is lost the handle is nobody's: to close it would start a process for nothing.
Response SmbFile::call(Request request, std::string_view what) {
    if (m_handle == 0)
        throw ConnectionLost(
            failure({.stage = Stage::Handle, .failure = ECONNABORTED}, what, m_path).description());
    request.handle = m_handle;
    try {
        return m_server.call(request, m_waiter, what);
    } catch (const basic::RuntimeError& error) {
        if (error.number() != basic::kDeviceIoError && error.number() != basic::kPathNotFound)
            throw;
        m_handle = 0;
        throw ConnectionLost(error.description() + ": " + m_path);
    }
}

} // namespace share::smb
