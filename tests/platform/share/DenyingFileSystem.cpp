// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/share/DenyingFileSystem.h"

#include "platform/basic/RuntimeError.h"

namespace share::testing {
namespace {

class DenyingFile final : public File {
public:
    DenyingFile(std::unique_ptr<File> behind, bool denies) : m_behind(std::move(behind)), m_denies(denies) {}

    const std::string& name() const override { return m_behind->name(); }
    bool excludesOthers() const override { return m_denies; }
    std::uint64_t size() override { return m_behind->size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
        return m_behind->read(offset, into);
    }
    void write(std::uint64_t offset, std::span<const std::byte> from) override {
        m_behind->write(offset, from);
    }
    void sync() override { m_behind->sync(); }
    bool lock(std::uint64_t, std::uint64_t, LockKind) override { return false; }
    void unlock(std::uint64_t, std::uint64_t) override {}

private:
    std::unique_ptr<File> m_behind;
    bool m_denies;
};

} // namespace

std::unique_ptr<File> DenyingFileSystem::openFile(std::string_view path, OpenMode mode) {
    opened.emplace_back(path);
    int& refusals = mode == OpenMode::Exclusive ? exclusiveRefusals : readRefusals;
    const bool isMeant = onlyTheDatabase.empty() || onlyTheDatabase == path;
    if (refusals > 0 && isMeant) {
        --refusals;
        throw basic::RuntimeError(basic::kFileAlreadyOpen);
    }
    if (mode != OpenMode::Exclusive && canDeny)
        return m_behind.openFile(path, mode);
    return std::make_unique<DenyingFile>(m_behind.openFile(path, mode), canDeny);
}

} // namespace share::testing
