// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/PageReader.h"

#include "platform/jet/Rc4.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/Images.h"
#include "tests/platform/jet/MemoryFile.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

TEST(PageReader, HandsOutWholePages) {
    test::Image image(3);
    image.putU8(2, 4095, 0x5A);
    test::MemoryFile file(image.bytes);
    PageReader reader(file, 0);
    PageBuffer buffer;
    EXPECT_EQ(reader.pageCount(), 3U);
    EXPECT_EQ(reader.page(2, buffer)[4095], std::byte{0x5A});
    EXPECT_EQ(file.reads.size(), 1U);
}

TEST(PageReader, RefusesAPageBeyondTheEnd) {
    test::MemoryFile file(test::Image(3).bytes);
    PageReader reader(file, 0);
    PageBuffer buffer;
    for (const PageNumber number : {3U, 0xFFFFFFU, 0xFFFFFFFFU})
        EXPECT_THAT(test::failureOf([&] { reader.page(number, buffer); }),
                    HasSubstr("page " + std::to_string(number) + ": the page lies beyond the end"));
    EXPECT_TRUE(file.reads.empty());
}

TEST(PageReader, SeesAFileThatHasGrown) {
    test::MemoryFile file(test::Image(1).bytes);
    PageReader reader(file, 0);
    file.bytes.resize(2 * format::page::kSize, std::byte{7});
    PageBuffer buffer;
    EXPECT_EQ(reader.page(1, buffer)[0], std::byte{7});
}

TEST(PageReader, ReportsAShortLastPageWithBothSizes) {
    test::Bytes bytes = test::Image(3).bytes;
    bytes.resize(2 * 4096 + 100);
    test::MemoryFile file(bytes);
    PageReader reader(file, 0);
    PageBuffer buffer;
    EXPECT_NO_THROW(reader.page(1, buffer));
    EXPECT_THAT(test::failureOf([&] { reader.page(2, buffer); }),
                HasSubstr("page 2: the page is cut short: 4096 bytes expected, 100 there"));
}

TEST(PageReader, DecodesAllButTheFirstPageOfAnEncodedDatabase) {
    test::Image image(3);
    test::Bytes& bytes = image.bytes;
    std::ranges::fill(bytes, std::byte{0x33});
    // Key 0x12345678 XOR page number, little-endian.
    applyRc4(std::array<std::uint8_t, 4>{0x79, 0x56, 0x34, 0x12}, std::span(bytes).subspan(4096, 4096));
    applyRc4(std::array<std::uint8_t, 4>{0x7A, 0x56, 0x34, 0x12}, std::span(bytes).subspan(8192, 4096));
    test::MemoryFile file(bytes);
    PageReader reader(file, 0x12345678);
    test::Bytes run(3 * 4096);
    reader.readRun(0, run);
    EXPECT_EQ(run, test::Bytes(3 * 4096, std::byte{0x33}));
    EXPECT_EQ(file.reads.size(), 1U);
}

} // namespace
} // namespace jet
