// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A file opened for random access, wherever it lies. The destructor closes it. Failures are RuntimeErrors
// with the platform's number and the file's name. One thread uses an object at a time; offsets and lengths
// are bytes.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace share {

enum class OpenMode {
    Read,      // the file must exist; others may read and write it meanwhile
    ReadWrite, // the file must exist
    Create,    // for reading and writing; the file must not exist yet
    Exclusive, // ReadWrite, and nobody else at the file where that can be had (excludesOthers); error 55
               // when somebody has it open
};

enum class LockKind { Shared, Exclusive };

class File {
public:
    File() = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    virtual ~File() = default;

    // The name it was opened by, for error texts.
    virtual const std::string& name() const = 0;
    // True when nobody else has the file open or can open it while this object lives: OpenMode::Exclusive
    // where opening can deny all sharing, as a server does and a local folder does not.
    virtual bool excludesOthers() const { return false; }
    virtual std::uint64_t size() = 0;
    // Fills `into` from `offset`; answers how many bytes were there, less than asked only at the end.
    virtual std::size_t read(std::uint64_t offset, std::span<std::byte> into) = 0;
    // Writes all of `from` at `offset` or throws.
    virtual void write(std::uint64_t offset, std::span<const std::byte> from) = 0;
    // Returns when everything written so far is on the disk.
    virtual void sync() = 0;
    // Takes or releases a byte-range lock; the range may lie beyond the end. Answers false at once when
    // somebody else holds a part of it, or when this kind of file cannot lock.
    virtual bool lock(std::uint64_t offset, std::uint64_t length, LockKind kind) = 0;
    virtual void unlock(std::uint64_t offset, std::uint64_t length) = 0;
};

} // namespace share
