// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The few system calls that reading and replacing a settings file takes, one virtual function each, with the
// calls' own results (-1 and errno), so that tests make any one of them fail or end the process there. This
// class carries them out. Stateless.

#include <sys/stat.h>
#include <sys/types.h>

#include <chrono>
#include <cstddef>

namespace registry {

class SystemCalls {
public:
    SystemCalls() = default;
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;
    virtual ~SystemCalls() = default;

    virtual int open(const char* path, int flags, mode_t mode);
    virtual int close(int file);
    virtual ssize_t read(int file, void* into, std::size_t size);
    virtual ssize_t write(int file, const void* from, std::size_t size);
    virtual int fsync(int file);
    virtual int fstat(int file, struct stat* into);
    virtual int stat(const char* path, struct stat* into);
    virtual int fchmod(int file, mode_t mode);
    virtual int fchown(int file, uid_t owner, gid_t group);
    virtual int flock(int file, int operation);
    virtual int rename(const char* from, const char* to);
    virtual int unlink(const char* path);
    virtual int mkdir(const char* path, mode_t mode);
    virtual int access(const char* path, int mode);
    virtual ssize_t readlink(const char* path, char* into, std::size_t size);
    virtual void pause(std::chrono::milliseconds time);
};

} // namespace registry
