// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/MemoryFile.h"

#include "tests/platform/share/ExpectError.h"

#include <array>

namespace share {
namespace {

std::vector<std::byte> bytesOf(std::string_view text) {
    const auto* data = reinterpret_cast<const std::byte*>(text.data());
    return {data, data + text.size()};
}

TEST(MemoryFile, ReadsWhatItWasMadeOf) {
    MemoryFile file(bytesOf("hello"));
    std::array<std::byte, 3> bytes{};
    EXPECT_EQ(file.read(1, bytes), 3U);
    EXPECT_EQ(bytes[0], std::byte{'e'});
    EXPECT_EQ(file.size(), 5U);
}

TEST(MemoryFile, ReadsLessAtTheEndAndNothingBeyondIt) {
    MemoryFile file(bytesOf("hello"));
    std::array<std::byte, 8> bytes{};
    EXPECT_EQ(file.read(3, bytes), 2U);
    EXPECT_EQ(file.read(5, bytes), 0U);
    EXPECT_EQ(file.read(~std::uint64_t{0}, bytes), 0U);
}

TEST(MemoryFile, GrowsWhenWrittenBeyondItsEnd) {
    MemoryFile file(bytesOf("ab"));
    file.write(4, bytesOf("z"));
    EXPECT_EQ(file.bytes(), bytesOf(std::string_view("ab\0\0z", 5)));
}

TEST(MemoryFile, RefusesToGrowBeyondTheLargestDatabase) {
    MemoryFile file({});
    EXPECT_ERROR(basic::kDiskFull, file.write(MemoryFile::kMaximumSize, bytesOf("x")));
    EXPECT_ERROR(basic::kDiskFull, file.write(~std::uint64_t{0}, bytesOf("x")));
    EXPECT_EQ(file.size(), 0U);
}

} // namespace
} // namespace share
