// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// An open file of the store: closed by the destructor, every call checked, every failure a StoreError that
// names the file.

#include "platform/registry/SystemCalls.h"

#include <string>
#include <string_view>

namespace registry {

class Descriptor {
public:
    // Takes over an open file; `path` is for error texts.
    Descriptor(SystemCalls& calls, int file, std::string path)
        : m_calls(calls), m_file(file), m_path(std::move(path)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    int file() const noexcept { return m_file; }
    struct stat status() const;
    // Everything up to the end; a file of more than `most` bytes is refused.
    std::string readAll(std::size_t most) const;
    void writeAll(std::string_view bytes) const;
    void sync() const;
    // Closes and tells of a write that failed late.
    void close();

    [[noreturn]] void failed(std::string_view what) const; // of the last system call

private:
    SystemCalls& m_calls;
    int m_file;
    std::string m_path;
};

// Throws a StoreError "<what>: <path>: <reason>" when it cannot be opened.
Descriptor openFile(SystemCalls& calls, const std::string& path, int flags, mode_t mode);

} // namespace registry
