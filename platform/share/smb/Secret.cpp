// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Secret.h"

#include <string.h> // explicit_bzero is no part of <cstring>
#include <sys/mman.h>
#include <sys/prctl.h>

#include <algorithm>
#include <new>
#include <utility>

namespace share::smb {

Secret::Secret(std::string_view text) : m_size(std::min(text.size(), kMaximumBytes)) {
    if (m_size == 0)
        return;
    void* memory = ::mmap(nullptr, kMaximumBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    ::madvise(memory, kMaximumBytes, MADV_DONTDUMP);
    ::mlock(memory, kMaximumBytes); // refused where the user's limit is used up: then it may be swapped
    m_text = static_cast<char*>(memory);
    std::copy_n(text.data(), m_size, m_text);
}

Secret::Secret(Secret&& other) noexcept
    : m_text(std::exchange(other.m_text, nullptr)), m_size(std::exchange(other.m_size, 0)) {}

Secret& Secret::operator=(Secret&& other) noexcept {
    std::swap(m_text, other.m_text);
    std::swap(m_size, other.m_size);
    return *this;
}

Secret::~Secret() {
    if (m_text == nullptr)
        return;
    wipe(m_text, kMaximumBytes);
    ::munmap(m_text, kMaximumBytes);
}

void keepMemoryPrivate() noexcept {
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

void wipe(void* memory, std::size_t size) noexcept {
    if (size > 0) // an empty buffer may have no address
        ::explicit_bzero(memory, size);
}

} // namespace share::smb
