// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

namespace jet {
namespace {

constexpr std::size_t kLarge = std::size_t{2} << 20U;

TEST(PageMemory, HoldsWhatWasAskedForWhateverItsSize) {
    for (const std::size_t size :
         {std::size_t{1}, std::size_t{4096}, kLarge - 1, kLarge, kLarge + 1, 5 * kLarge + 7}) {
        PageMemory memory(size);
        std::fill_n(memory.data(), size, std::byte{0x5A});
        const PageMemory moved = std::move(memory);
        EXPECT_EQ(std::count(moved.data(), moved.data() + size, std::byte{0x5A}),
                  static_cast<std::ptrdiff_t>(size));
    }
}

TEST(PageMemory, FailsWithoutMemory) {
    EXPECT_THROW(PageMemory(std::size_t{1} << 47U), std::bad_alloc);
}

TEST(PageMemory, HoldsNothingAtFirst) {
    EXPECT_EQ(PageMemory().data(), nullptr);
}

} // namespace
} // namespace jet
