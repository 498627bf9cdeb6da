// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Memory for many pages, uninitialized. A large piece asks the system for pages of its own larger size: a
// fault for every 4 KiB takes as long as reading the file does. Owns the memory.

#include <cstddef>
#include <memory>

namespace jet {

class PageMemory {
public:
    PageMemory() = default;
    // std::bad_alloc without memory.
    explicit PageMemory(std::size_t size);

    std::byte* data() const noexcept { return m_bytes.get(); }

private:
    struct Free {
        void operator()(std::byte* bytes) const noexcept;
    };

    std::unique_ptr<std::byte[], Free> m_bytes;
};

} // namespace jet
