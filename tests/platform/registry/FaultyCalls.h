// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// System calls that go wrong on demand: the Nth call fails with an error number, or the process "dies" at it,
// before or after it was carried out. A dead process changes nothing any more: every later call fails without
// effect, only descriptors are closed, as the system does it. Every call is written down by name.

#include "platform/registry/SystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <string>
#include <vector>

namespace registry {

class FaultyCalls final : public SystemCalls {
public:
    enum class Fault { None, Fail, DieBefore, DieAfter };

    // The fault strikes at call number `at`, counted from 1.
    void strike(Fault fault, std::size_t at, int errnoValue = EIO) {
        m_fault = fault;
        m_at = at;
        m_errno = errnoValue;
        m_isDead = false;
        names.clear();
    }
    bool hasStruck() const { return m_fault != Fault::None && names.size() >= m_at; }
    bool isDead() const { return m_isDead; }

    int open(const char* path, int flags, mode_t mode) override {
        return call("open", -1, [&] { return SystemCalls::open(path, flags, mode); });
    }
    int close(int file) override {
        // The descriptor is gone whatever close() says.
        const int closed = SystemCalls::close(file);
        return call("close", -1, [closed] { return closed; });
    }
    ssize_t read(int file, void* into, std::size_t size) override {
        return call("read", ssize_t{-1}, [&] { return SystemCalls::read(file, into, std::min(size, most)); });
    }
    ssize_t write(int file, const void* from, std::size_t size) override {
        return call("write", ssize_t{-1},
                    [&] { return SystemCalls::write(file, from, std::min(size, most)); });
    }
    int fsync(int file) override {
        return call("fsync", -1, [&] { return SystemCalls::fsync(file); });
    }
    int fstat(int file, struct stat* into) override {
        return call("fstat", -1, [&] { return SystemCalls::fstat(file, into); });
    }
    int stat(const char* path, struct stat* into) override {
        return call("stat", -1, [&] { return SystemCalls::stat(path, into); });
    }
    int fchmod(int file, mode_t mode) override {
        return call("fchmod", -1, [&] { return SystemCalls::fchmod(file, mode); });
    }
    int fchown(int file, uid_t owner, gid_t group) override {
        return call("fchown", -1, [&] { return SystemCalls::fchown(file, owner, group); });
    }
    int flock(int file, int operation) override {
        return call("flock", -1, [&] { return SystemCalls::flock(file, operation); });
    }
    int rename(const char* from, const char* to) override {
        return call("rename", -1, [&] { return SystemCalls::rename(from, to); });
    }
    int unlink(const char* path) override {
        return call("unlink", -1, [&] { return SystemCalls::unlink(path); });
    }
    int mkdir(const char* path, mode_t mode) override {
        return call("mkdir", -1, [&] { return SystemCalls::mkdir(path, mode); });
    }
    int access(const char* path, int mode) override {
        return call("access", -1, [&] { return SystemCalls::access(path, mode); });
    }
    ssize_t readlink(const char* path, char* into, std::size_t size) override {
        return call("readlink", ssize_t{-1}, [&] { return SystemCalls::readlink(path, into, size); });
    }
    void pause(std::chrono::milliseconds time) override { paused += time; }

    std::size_t most = SIZE_MAX; // bytes that one read or write carries at most
    std::vector<std::string> names;
    std::chrono::milliseconds paused{0};

private:
    template <typename Number, typename Call>
    Number call(const char* name, Number failed, Call&& carryOut) {
        if (m_isDead)
            return failure(failed, EIO);
        names.emplace_back(name);
        if (m_fault == Fault::None || names.size() != m_at)
            return carryOut();
        if (m_fault == Fault::DieAfter)
            carryOut();
        m_isDead = m_fault != Fault::Fail;
        return failure(failed, m_errno);
    }

    template <typename Number>
    static Number failure(Number failed, int errnoValue) {
        errno = errnoValue;
        return failed;
    }

    Fault m_fault = Fault::None;
    std::size_t m_at = 0;
    int m_errno = EIO;
    bool m_isDead = false;
};

} // namespace registry
