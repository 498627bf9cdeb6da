// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/SystemCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>
#include <thread>

namespace registry {

int SystemCalls::open(const char* path, int flags, mode_t mode) {
    return ::open(path, flags, mode);
}
int SystemCalls::close(int file) {
    return ::close(file);
}
ssize_t SystemCalls::read(int file, void* into, std::size_t size) {
    return ::read(file, into, size);
}
ssize_t SystemCalls::write(int file, const void* from, std::size_t size) {
    return ::write(file, from, size);
}
int SystemCalls::fsync(int file) {
    return ::fsync(file);
}
int SystemCalls::fstat(int file, struct stat* into) {
    return ::fstat(file, into);
}
int SystemCalls::stat(const char* path, struct stat* into) {
    return ::stat(path, into);
}
int SystemCalls::fchmod(int file, mode_t mode) {
    return ::fchmod(file, mode);
}
int SystemCalls::fchown(int file, uid_t owner, gid_t group) {
    return ::fchown(file, owner, group);
}
int SystemCalls::flock(int file, int operation) {
    return ::flock(file, operation);
}
int SystemCalls::rename(const char* from, const char* to) {
    return ::rename(from, to);
}
int SystemCalls::unlink(const char* path) {
    return ::unlink(path);
}
int SystemCalls::mkdir(const char* path, mode_t mode) {
    return ::mkdir(path, mode);
}
int SystemCalls::access(const char* path, int mode) {
    return ::access(path, mode);
}
ssize_t SystemCalls::readlink(const char* path, char* into, std::size_t size) {
    return ::readlink(path, into, size);
}
void SystemCalls::pause(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

} // namespace registry
