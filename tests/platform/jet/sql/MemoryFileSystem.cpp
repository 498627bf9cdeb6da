// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/MemoryFileSystem.h"

#include <algorithm>

namespace jet::test {
namespace {

class SharedFile final : public share::File {
public:
    SharedFile(MemoryFileSystem& system, std::string name) : m_system(system), m_name(std::move(name)) {
        ++m_system.opened;
        ++m_system.open;
    }
    ~SharedFile() override { --m_system.open; }

    const std::string& name() const override { return m_name; }
    std::uint64_t size() override { return m_system.bytes.size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
        ++m_system.reads;
        if (m_system.beforeRead)
            m_system.beforeRead(m_system.reads);
        if (offset >= m_system.bytes.size())
            return 0;
        const std::size_t start = static_cast<std::size_t>(offset);
        const std::size_t count = std::min(into.size(), m_system.bytes.size() - start);
        std::copy_n(m_system.bytes.data() + start, count, into.data());
        m_system.bytesRead += count;
        return count;
    }
    void write(std::uint64_t, std::span<const std::byte>) override {
        throw basic::RuntimeError(basic::kPermissionDenied);
    }
    void sync() override {}
    bool lock(std::uint64_t, std::uint64_t, share::LockKind) override { return false; }
    void unlock(std::uint64_t, std::uint64_t) override {}

private:
    MemoryFileSystem& m_system;
    std::string m_name;
};

} // namespace

void MemoryFileSystem::setWord(std::size_t offset, std::uint16_t value) {
    bytes.at(offset) = static_cast<std::byte>(value & 0xFFU);
    bytes.at(offset + 1) = static_cast<std::byte>(value >> 8U);
}

std::uint16_t MemoryFileSystem::word(std::size_t offset) const {
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes.at(offset)) |
                                      std::to_integer<unsigned>(bytes.at(offset + 1)) << 8U);
}

std::unique_ptr<share::File> MemoryFileSystem::openFile(std::string_view path, share::OpenMode) {
    if (failures > 0) {
        --failures;
        throw basic::RuntimeError(failure);
    }
    if (path != kDatabase)
        throw basic::RuntimeError(basic::kFileNotFound);
    return std::make_unique<SharedFile>(*this, std::string(path));
}

} // namespace jet::test
