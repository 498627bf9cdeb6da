// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/jet/RecordingFile.h"

#include <algorithm>

namespace jet::test {

std::size_t RecordingFile::read(std::uint64_t offset, std::span<std::byte> into) {
    if (offset >= image.size())
        return 0;
    const std::size_t count = std::min<std::size_t>(into.size(), image.size() - offset);
    std::copy_n(image.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
    return count;
}

void RecordingFile::write(std::uint64_t offset, std::span<const std::byte> from) {
    groups.back().push_back({offset, {from.begin(), from.end()}});
    apply(image, offset, from);
}

void RecordingFile::sync() {
    if (!groups.back().empty())
        groups.emplace_back();
}

void apply(FileImage& image, std::uint64_t offset, std::span<const std::byte> bytes) {
    image.resize(std::max<std::size_t>(image.size(), offset + bytes.size()));
    std::ranges::copy(bytes, image.begin() + static_cast<std::ptrdiff_t>(offset));
}

} // namespace jet::test
