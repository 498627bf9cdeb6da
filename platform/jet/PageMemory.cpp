// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageMemory.h"

#include <sys/mman.h>

#include <cstdlib>
#include <new>

namespace jet {
namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20U; // the processor's, where it has them

void* allocate(std::size_t size) {
    if (size < kHugePage)
        return std::malloc(size); // NOLINT(cppcoreguidelines-no-malloc): of one kind with the other
    const std::size_t whole = (size + kHugePage - 1) / kHugePage * kHugePage;
    void* const bytes = std::aligned_alloc(kHugePage, whole);
    if (bytes != nullptr)
        ::madvise(bytes, whole, MADV_HUGEPAGE); // a system without them refuses, and nothing is lost
    return bytes;
}

} // namespace

PageMemory::PageMemory(std::size_t size) : m_bytes(static_cast<std::byte*>(allocate(size))) {
    if (!m_bytes)
        throw std::bad_alloc();
}

void PageMemory::Free::operator()(std::byte* bytes) const noexcept {
    std::free(bytes); // NOLINT(cppcoreguidelines-no-malloc)
}

} // namespace jet
