// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file that is nothing but bytes in memory, owned by it: to read a database out of a buffer, and for tests.
// It grows when written beyond its end, up to a limit. Nobody else can open it, so every lock is granted.

#include "platform/share/File.h"

#include <string>
#include <vector>

namespace share {

class MemoryFile final : public File {
public:
    static constexpr std::uint64_t kMaximumSize = std::uint64_t{1} << 31U; // as large as a database can be

    explicit MemoryFile(std::vector<std::byte> bytes, std::string name = "(memory)")
        : m_bytes(std::move(bytes)), m_name(std::move(name)) {}

    const std::vector<std::byte>& bytes() const noexcept { return m_bytes; }

    const std::string& name() const override { return m_name; }
    std::uint64_t size() override { return m_bytes.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override;
    void write(std::uint64_t offset, std::span<const std::byte> from) override;
    void sync() override {}
    bool lock(std::uint64_t, std::uint64_t, LockKind) override { return true; }
    void unlock(std::uint64_t, std::uint64_t) override {}

private:
    std::vector<std::byte> m_bytes;
    std::string m_name;
};

} // namespace share
