// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A regular file that the operating system can open: on a local disk or on a mounted share. Folders, pipes
// and devices are refused without waiting for anybody. Locks belong to the open file, not to the process, so
// two LocalFiles of one program exclude each other as those of two programs do. Not handed to child
// processes.

#include "platform/share/File.h"
#include "platform/share/FileDescriptor.h"

#include <memory>
#include <string>

namespace share {

class LocalFile final : public File {
public:
    // `path` is a name of the operating system; `shownName` is what errors call the file.
    static std::unique_ptr<LocalFile> open(const std::string& path, OpenMode mode, std::string shownName);
    static std::unique_ptr<LocalFile> open(const std::string& path, OpenMode mode) {
        return open(path, mode, path);
    }

    const std::string& name() const override { return m_name; }
    std::uint64_t size() override;
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override;
    void write(std::uint64_t offset, std::span<const std::byte> from) override;
    void sync() override;
    bool lock(std::uint64_t offset, std::uint64_t length, LockKind kind) override;
    void unlock(std::uint64_t offset, std::uint64_t length) override;

private:
    LocalFile(FileDescriptor descriptor, std::string name)
        : m_descriptor(std::move(descriptor)), m_name(std::move(name)) {}
    int setLock(short type, std::uint64_t offset, std::uint64_t length);

    FileDescriptor m_descriptor;
    std::string m_name;
};

} // namespace share
