// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file that is open on a server. Reading shares it with everybody; every mode that writes has it alone: the
// server refuses the opening while anybody has the file open, and everybody else until it is closed. That is
// why they grant every lock, while a file opened for reading grants none. What was written has reached the
// server when write() returns; when its disk gets it is the server's own affair, the protocol's library has
// no word for it. The server and the waiter must outlive it.

#include "platform/share/File.h"
#include "platform/share/smb/SmbServer.h"

#include <memory>
#include <string>

namespace share::smb {

class SmbFile final : public File {
public:
    static std::unique_ptr<SmbFile> open(SmbServer& server, Waiter& waiter, std::string path, OpenMode mode);
    ~SmbFile() override;

    const std::string& name() const override { return m_path; }
    bool excludesOthers() const override { return m_isAlone; }
    std::uint64_t size() override;
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override;
    void write(std::uint64_t offset, std::span<const std::byte> from) override;
    void sync() override {}
    bool lock(std::uint64_t, std::uint64_t, LockKind) override { return m_isAlone; }
    void unlock(std::uint64_t, std::uint64_t) override {}

private:
    SmbFile(SmbServer& server, Waiter& waiter, std::string path, bool isAlone)
        : m_server(server), m_waiter(waiter), m_path(std::move(path)), m_isAlone(isAlone) {}
    Response call(Request request, std::string_view what);
    std::size_t readPiece(std::uint64_t offset, std::span<std::byte> into);

    SmbServer& m_server;
    Waiter& m_waiter;
    std::string m_path;
    bool m_isAlone;
    std::uint32_t m_handle = 0; // 0: not open
};

} // namespace share::smb
