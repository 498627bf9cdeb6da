// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageMemory.h"

#include <sys/mman.h>

#include <new>

namespace jet {
namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20U;

// The system puts a piece where large pages fit when it is a multiple of them.
constexpr std::size_t wholeHugePages(std::size_t size) {
    return (size + kHugePage - 1) / kHugePage * kHugePage;
}

std::byte* map(std::size_t size) {
    void* const bytes = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bytes == MAP_FAILED)
        throw std::bad_alloc();
    ::madvise(bytes, size, MADV_HUGEPAGE); // a system without them refuses, and nothing is lost
    return static_cast<std::byte*>(bytes);
}

} // namespace

PageMemory::PageMemory(std::size_t size) {
    const std::size_t mapped = size < kHugePage ? 0 : wholeHugePages(size);
    m_bytes =
        std::unique_ptr<std::byte[], Free>(mapped != 0 ? map(mapped) : new std::byte[size], Free{mapped});
}

void PageMemory::Free::operator()(std::byte* bytes) const noexcept {
    if (mapped != 0)
        ::munmap(bytes, mapped);
    else
        delete[] bytes;
}

} // namespace jet
