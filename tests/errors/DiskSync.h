// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Watches, while it lives, which files this process writes through to the disk; can make that fail. One at a
// time. A test program that has it brings an fdatasync() of its own.

#include <cstddef>
#include <vector>

namespace errors {

class DiskSync {
public:
    enum class Outcome { Works, Fails };

    explicit DiskSync(Outcome outcome = Outcome::Works);
    DiskSync(const DiskSync&) = delete;
    DiskSync& operator=(const DiskSync&) = delete;
    ~DiskSync();

    // The sizes that the files had when they were written through, in that order.
    const std::vector<std::size_t>& sizes() const { return m_sizes; }
    // Answers as fdatasync() does.
    int note(int descriptor);

private:
    Outcome m_outcome;
    std::vector<std::size_t> m_sizes;
};

} // namespace errors
