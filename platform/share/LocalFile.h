// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A regular file that the operating system can open: on a local disk or on a mounted share. Folders, pipes
// and devices are refused without waiting for anybody. Locks belong to the open file, not to the process, so
// two LocalFiles of one program exclude each other as those of two programs do. On a mount whose locks no
// other machine sees, none is given. Not handed to child processes.

#include "platform/share/File.h"
#include "platform/share/FileDescriptor.h"
#include "platform/share/MountTable.h"

#include <memory>
#include <optional>
#include <string>

namespace share {

class LocalFile final : public File {
public:
    // `path` is a name of the operating system; `shownName` is what errors call the file. Without `mounts`
    // every lock counts.
    static std::unique_ptr<LocalFile> open(const std::string& path, OpenMode mode, std::string shownName,
                                           MountInfo mounts = MountTable::systemText);
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
    LocalFile(FileDescriptor descriptor, std::string name, MountInfo mounts)
        : m_descriptor(std::move(descriptor)), m_name(std::move(name)), m_mounts(std::move(mounts)) {}
    bool locksAreShared();
    int setLock(short type, std::uint64_t offset, std::uint64_t length);

    FileDescriptor m_descriptor;
    std::string m_name;
    MountInfo m_mounts;
    std::optional<bool> m_locksAreShared; // found out when the first one is asked for
};

} // namespace share
