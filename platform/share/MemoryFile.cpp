// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MemoryFile.h"

#include "platform/basic/RuntimeError.h"

#include <algorithm>

namespace share {

std::size_t MemoryFile::read(std::uint64_t offset, std::span<std::byte> into) {
    if (offset >= m_bytes.size())
        return 0;
    const std::size_t start = static_cast<std::size_t>(offset);
    const std::size_t count = std::min(into.size(), m_bytes.size() - start);
    std::copy_n(m_bytes.data() + start, count, into.data());
    return count;
}

void MemoryFile::write(std::uint64_t offset, std::span<const std::byte> from) {
    if (offset > kMaximumSize || from.size() > kMaximumSize - offset)
        throw basic::RuntimeError(basic::kDiskFull, "write: " + m_name + ": larger than any database");
    const std::size_t start = static_cast<std::size_t>(offset);
    if (start + from.size() > m_bytes.size())
        m_bytes.resize(start + from.size());
    std::copy(from.begin(), from.end(), m_bytes.data() + start);
}

} // namespace share
