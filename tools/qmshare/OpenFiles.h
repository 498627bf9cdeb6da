// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The files that the client has open, by the numbers it chose. Closes what is left when it goes; the context
// must outlive it. Failures are -1 and errno, as the library's.

#include "platform/share/File.h"
#include "tools/qmshare/SmbContext.h"

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>

namespace qmshare {

class OpenFiles {
public:
    static constexpr std::size_t kMaximum = 64;

    explicit OpenFiles(SmbContext& context) : m_context(context) {}
    OpenFiles(const OpenFiles&) = delete;
    OpenFiles& operator=(const OpenFiles&) = delete;
    ~OpenFiles();

    bool has(std::uint32_t handle) const { return m_files.contains(handle); }
    int open(std::uint32_t handle, const std::string& url, share::OpenMode mode);
    int close(std::uint32_t handle);
    // All of `into` unless the file ends before.
    ssize_t read(std::uint32_t handle, std::uint64_t offset, std::span<std::byte> into);
    int write(std::uint32_t handle, std::uint64_t offset, std::span<const std::byte> from);
    std::int64_t size(std::uint32_t handle);

private:
    bool seek(SMBCFILE* file, std::uint64_t offset);

    SmbContext& m_context;
    std::map<std::uint32_t, SMBCFILE*> m_files;
};

} // namespace qmshare
