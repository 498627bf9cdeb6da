// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Memory for many pages, uninitialized. A large piece comes from the system itself, in pages of the
// processor's larger size where it has them: a fault for every 4 KiB takes as long as reading the file does.
// It goes back there. Owns the memory.

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
        std::size_t mapped; // 0: from the heap
    };

    std::unique_ptr<std::byte[], Free> m_bytes{nullptr, Free{0}};
};

} // namespace jet
