// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file of bytes in memory that counts what is asked of it. Tests change its bytes at will.

#include "platform/share/File.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <utility>
#include <vector>

namespace jet::test {

class MemoryFile final : public share::File {
public:
    explicit MemoryFile(std::vector<std::byte> content, std::string name = "test.mdb")
        : bytes(std::move(content)), m_name(std::move(name)) {}

    const std::string& name() const override { return m_name; }
    std::uint64_t size() override { return bytes.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
        reads.emplace_back(offset, into.size());
        if (beforeRead)
            beforeRead(*this);
        if (offset >= bytes.size())
            return 0;
        const std::size_t count = std::min<std::size_t>(into.size(), bytes.size() - offset);
        std::memcpy(into.data(), bytes.data() + offset, count);
        return count;
    }
    void write(std::uint64_t offset, std::span<const std::byte> from) override {
        bytes.resize(std::max<std::size_t>(bytes.size(), offset + from.size()));
        std::ranges::copy(from, bytes.begin() + static_cast<std::ptrdiff_t>(offset));
    }
    void sync() override {}
    bool lock(std::uint64_t, std::uint64_t, share::LockKind) override { return true; }
    void unlock(std::uint64_t, std::uint64_t) override {}

    std::vector<std::byte> bytes;
    std::vector<std::pair<std::uint64_t, std::size_t>> reads; // offset and length of each
    std::function<void(MemoryFile&)> beforeRead;

private:
    std::string m_name;
};

} // namespace jet::test
