// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A server's failing disk: preloaded into smbd, it counts what that does with databases (*.mdb) and lets one
// of these calls, or all from there on, fail. The test and all processes of the server share the numbers of
// the file that FAILING_DISK names (Numbers below).

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

struct Numbers {
    std::atomic<std::int32_t> calls;    // so far
    std::atomic<std::int32_t> failAt;   // from 1; 0: none
    std::atomic<std::int32_t> failures; // how many calls fail from there on
    std::atomic<std::int32_t> error;    // errno
    std::atomic<std::int32_t> half;     // not 0: a write that fails has written its first half
    std::atomic<std::int32_t> failed;   // calls that failed
};

Numbers* numbers() {
    static Numbers* const shared = [] {
        const char* name = std::getenv("FAILING_DISK");
        const int file = name != nullptr ? ::open(name, O_RDWR | O_CLOEXEC) : -1;
        if (file < 0)
            return static_cast<Numbers*>(nullptr);
        void* place = ::mmap(nullptr, sizeof(Numbers), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        ::close(file);
        return place == MAP_FAILED ? nullptr : static_cast<Numbers*>(place);
    }();
    return shared;
}

bool isDatabase(int file) {
    std::array<char, 4096> target{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
    return length > 0 && std::string_view(target.data(), static_cast<std::size_t>(length)).ends_with(".mdb");
}

bool fails(int file) {
    Numbers* const shared = numbers();
    if (shared == nullptr || !isDatabase(file))
        return false;
    const std::int32_t call = ++shared->calls;
    const std::int32_t from = shared->failAt;
    if (from == 0 || call < from || call - from >= shared->failures)
        return false;
    ++shared->failed;
    errno = shared->error;
    return true;
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

ssize_t pread(int file, void* into, std::size_t size, off_t offset) {
    static auto* const call = next<ssize_t(int, void*, std::size_t, off_t)>("pread");
    return fails(file) ? -1 : call(file, into, size, offset);
}

ssize_t pwrite(int file, const void* from, std::size_t size, off_t offset) {
    static auto* const call = next<ssize_t(int, const void*, std::size_t, off_t)>("pwrite");
    if (!fails(file))
        return call(file, from, size, offset);
    const int error = errno;
    if (numbers()->half != 0)
        call(file, from, size / 2, offset);
    errno = error;
    return -1;
}

int ftruncate(int file, off_t size) noexcept {
    static auto* const call = next<int(int, off_t)>("ftruncate");
    return fails(file) ? -1 : call(file, size);
}

int openat(int folder, const char* path, int flags, ...) {
    static auto* const call = next<int(int, const char*, int, ...)>("openat");
    va_list rest;
    va_start(rest, flags);
    const auto mode = static_cast<mode_t>((flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, unsigned) : 0U);
    va_end(rest);
    const int file = call(folder, path, flags, mode);
    if (file < 0 || (flags & O_PATH) != 0 || !fails(file))
        return file;
    const int error = errno;
    ::close(file);
    errno = error;
    return -1;
}
}
