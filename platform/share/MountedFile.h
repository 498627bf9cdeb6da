// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file on a mount that a server or a program answers for: a LocalFile whose every call is made by way of
// MountCalls. Each piece of a read or write has a deadline of its own. A failure of the connection to the
// server is ConnectionLost; a file whose call was left behind stays lost. The calls must outlive it.

#include "platform/share/File.h"
#include "platform/share/MountCalls.h"

#include <memory>
#include <string>

namespace share {

class MountedFile final : public File {
public:
    // `file` is opened there already.
    MountedFile(MountCalls& calls, SlowMount mount, std::shared_ptr<File> file)
        : m_calls(calls), m_mount(std::move(mount)), m_name(file->name()), m_file(std::move(file)) {}
    ~MountedFile() override { m_calls.letGo(m_mount, std::move(m_file)); }

    const std::string& name() const override { return m_name; }
    std::uint64_t size() override;
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override;
    void write(std::uint64_t offset, std::span<const std::byte> from) override;
    void sync() override;
    bool lock(std::uint64_t offset, std::uint64_t length, LockKind kind) override;
    void unlock(std::uint64_t offset, std::uint64_t length) override;

private:
    template <typename Result, typename Work>
    Result call(Work work, MountCalls::Requests requests = MountCalls::Requests::Few);
    std::size_t readPiece(std::uint64_t offset, std::span<std::byte> into);

    MountCalls& m_calls;
    const SlowMount m_mount;
    const std::string m_name;
    std::shared_ptr<File> m_file;
    bool m_isLost = false; // a call that was left behind uses it still
};

} // namespace share
