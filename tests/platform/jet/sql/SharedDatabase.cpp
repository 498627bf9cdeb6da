// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/sql/SharedDatabase.h"

#include "platform/basic/RuntimeError.h"

#include <filesystem>

namespace jet::test {
namespace {

class DenyingFile final : public share::File {
public:
    explicit DenyingFile(std::unique_ptr<share::File> behind) : m_behind(std::move(behind)) {}

    const std::string& name() const override { return m_behind->name(); }
    bool excludesOthers() const override { return true; }
    std::uint64_t size() override { return m_behind->size(); }
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
        return m_behind->read(offset, into);
    }
    void write(std::uint64_t offset, std::span<const std::byte> from) override {
        m_behind->write(offset, from);
    }
    void sync() override { m_behind->sync(); }
    bool lock(std::uint64_t, std::uint64_t, share::LockKind) override { return false; }
    void unlock(std::uint64_t, std::uint64_t) override {}

private:
    std::unique_ptr<share::File> m_behind;
};

} // namespace

std::unique_ptr<share::File> DenyingFileSystem::openFile(std::string_view path, share::OpenMode mode) {
    opened.emplace_back(path);
    int& refusals = mode == share::OpenMode::Exclusive ? exclusiveRefusals : readRefusals;
    if (refusals > 0) {
        --refusals;
        throw basic::RuntimeError(basic::kFileAlreadyOpen);
    }
    if (mode != share::OpenMode::Exclusive)
        return m_behind.openFile(path, mode);
    return std::make_unique<DenyingFile>(m_behind.openFile(path, mode));
}

SharedDatabase::SharedDatabase(const FileImage& image)
    : files(share::ShareResolver([this](std::string_view) { return m_folder.path("share"); },
                                 [] { return std::string(); })) {
    std::filesystem::create_directories(m_folder.path("share/MBX"));
    std::filesystem::create_directory_symlink(m_folder.path("."), m_folder.path("share/MBX/7"));
    setBytes(image);
}

FileImage SharedDatabase::bytes() const {
    const auto file = share::LocalFile::open(place(), share::OpenMode::Read);
    FileImage image(file->size());
    file->read(0, image);
    return image;
}

void SharedDatabase::setBytes(const FileImage& image) const {
    std::filesystem::remove(place());
    share::LocalFile::open(place(), share::OpenMode::Create)->write(0, image);
}

std::size_t SharedDatabase::rowCount() const {
    return readRows(*share::LocalFile::open(place(), share::OpenMode::Read), kLog).size();
}

bool SharedDatabase::isSound() const {
    try {
        checkDatabase(*share::LocalFile::open(place(), share::OpenMode::Read));
        return true;
    } catch (const basic::RuntimeError&) {
        return false;
    }
}

std::string SharedDatabase::json(const std::string& table) const {
    return runTool("mdb-json -T '%Y-%m-%d %H:%M:%S' '" + place() + "' " + table);
}

} // namespace jet::test
