// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/LongValueReader.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

constexpr std::uint32_t kSingle = format::longValue::kSingleRow;
constexpr std::uint32_t kInline = format::longValue::kInline;
constexpr std::uint32_t kLvalOwner = format::dataPage::kLongValueOwner;

// Long-value rows: page 1 holds "abc"; page 2 a chain's first part "de" and its second "fgh", the third,
// "ij", is on page 1.
class LongValueReaderOfChain : public testing::Test {
protected:
    LongValueReaderOfChain() : image(3) {
        image.putRows(1, kLvalOwner, {test::fromHex("61 62 63"), part({0, 0}, "69 6A")});
        image.putRows(2, kLvalOwner, {part({2, 1}, "64 65"), part({1, 1}, "66 67 68")});
    }
    static test::Bytes part(RowPointer next, std::string_view hex) {
        return test::joined({test::u32(next.stored()), test::fromHex(hex)});
    }
    // Checking a value goes the way of reading it.
    std::string read(const test::Bytes& field) {
        test::SourceOf source(image);
        LongValueReader reader(source.pages);
        LongValueReader checker(source.pages);
        std::span<const std::byte> bytes;
        try {
            bytes = reader.read(field, kPlace);
        } catch (const basic::RuntimeError& error) {
            EXPECT_EQ(test::failureOf([&] { checker.check(field, kPlace); }), error.description());
            throw;
        }
        reads = source.file.reads.size();
        checker.check(field, kPlace);
        EXPECT_EQ(reader.bytesRead(), bytes.size());
        EXPECT_EQ(checker.bytesRead(), bytes.size());
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }
    std::string readFrom(std::uint32_t kindAndLength, RowPointer where) {
        return read(test::longValueHeader(kindAndLength, where));
    }

    static constexpr Place kPlace{"a.mdb", "T", 6, 2};

    test::Image image;
    std::size_t reads = 0;
};

TEST_F(LongValueReaderOfChain, ReadsAValueInTheRowItself) {
    EXPECT_EQ(read(test::joined({test::longValueHeader(kInline | 2, {}), test::fromHex("78 79")})), "xy");
    EXPECT_EQ(reads, 0U);
}

TEST_F(LongValueReaderOfChain, ReadsAValueInOneRow) {
    EXPECT_EQ(readFrom(kSingle | 3, {1, 0}), "abc");
}

TEST_F(LongValueReaderOfChain, ReadsAChain) {
    EXPECT_EQ(readFrom(7, {2, 0}), "defghij");
    EXPECT_EQ(reads, 2U);
}

// The rows of a damaged page can lie one in the other: each of these holds all that come after it.
TEST_F(LongValueReaderOfChain, NeverAnswersMoreThanTheFileHolds) {
    constexpr std::uint8_t kParts = 40;
    constexpr unsigned kFirst = 1000;
    image.putRows(2, kLvalOwner, std::vector<test::Bytes>(2 * kParts, test::fromHex("00")));
    for (std::uint8_t i = 0; i < kParts; ++i) {
        const std::size_t slot = format::dataPage::kSlots + format::dataPage::kSlotSize * 2 * i;
        const unsigned start = kFirst + 8U * i;
        image.putU16(2, slot, format::page::kSize); // where the next one ends
        image.putU16(2, slot + format::dataPage::kSlotSize, start);
        const RowPointer next{2, static_cast<std::uint8_t>(2 * i + 3)};
        image.putU32(2, start, i + 1 < kParts ? next.stored() : 0);
    }
    EXPECT_EQ(readFrom(format::longValue::kLengthMask, {2, 1}).size(), image.bytes.size());
}

TEST_F(LongValueReaderOfChain, NeverAnswersMoreThanTheStatedLength) {
    EXPECT_EQ(readFrom(kSingle | 2, {1, 0}), "ab");
    EXPECT_EQ(readFrom(3, {2, 0}), "def");
    EXPECT_EQ(readFrom(0, {2, 0}), "");
    EXPECT_EQ(read(test::joined({test::longValueHeader(kInline | 1, {}), test::fromHex("78 79")})), "x");
}

TEST_F(LongValueReaderOfChain, AnswersWhatIsThereWhenTheStatedLengthIsMore) {
    EXPECT_EQ(readFrom(kSingle | 0x3FFFFFFF, {1, 0}), "abc");
    EXPECT_EQ(readFrom(0x3FFFFFFF, {2, 0}), "defghij");
    EXPECT_EQ(read(test::joined({test::longValueHeader(kInline | 900, {}), test::fromHex("78 79")})), "xy");
}

TEST_F(LongValueReaderOfChain, FieldShorterThanItsHeaderIsEmpty) {
    for (std::size_t size = 0; size < 12; ++size)
        EXPECT_EQ(read(test::Bytes(size)), "");
}

TEST_F(LongValueReaderOfChain, RejectsAChainThatMeetsItself) {
    image.putRows(2, kLvalOwner, {part({2, 0}, "64 65")});
    EXPECT_THAT(test::failureOf([&] { readFrom(0x3FFFFFFF, {2, 0}); }), HasSubstr("form a loop"));
    image.putRows(2, kLvalOwner,
                  {part({2, 1}, "64"), part({2, 2}, "65"), part({2, 3}, "66"), part({2, 1}, "67")});
    EXPECT_THAT(test::failureOf([&] {
                    readFrom(0x3FFFFFFF, {2, 0});
                }),
                HasSubstr("table T, page 6, row 2: the parts of a long value form a loop"));
}

TEST_F(LongValueReaderOfChain, RejectsALoopOfEmptyParts) {
    image.putRows(2, kLvalOwner, {part({2, 1}, ""), part({2, 0}, "")});
    EXPECT_THAT(test::failureOf([&] { readFrom(5, {2, 0}); }), HasSubstr("form a loop"));
}

TEST_F(LongValueReaderOfChain, RejectsAPartTooShortForItsPointer) {
    image.putRows(2, kLvalOwner, {test::fromHex("01 02")});
    EXPECT_THAT(test::failureOf([&] { readFrom(5, {2, 0}); }), HasSubstr("beyond the end"));
}

TEST_F(LongValueReaderOfChain, RejectsAPageThatHoldsNoLongValues) {
    image.putRows(2, 5, {test::fromHex("61")});
    EXPECT_THAT(test::failureOf([&] {
                    readFrom(kSingle | 1, {2, 0});
                }),
                HasSubstr("page 2, which holds no long"));
    EXPECT_THAT(test::failureOf([&] {
                    readFrom(kSingle | 1, {0, 0});
                }),
                HasSubstr("a data page is expected"));
    EXPECT_THAT(test::failureOf([&] {
                    readFrom(kSingle | 1, {77, 0});
                }),
                HasSubstr("beyond the end of the file"));
}

TEST_F(LongValueReaderOfChain, RejectsAPartThatIsMissingOrDeleted) {
    EXPECT_THAT(test::failureOf([&] { readFrom(kSingle | 1, {1, 2}); }), HasSubstr("only 2 rows"));
    image.setSlotFlags(1, 0, format::dataPage::kDeleted);
    EXPECT_THAT(test::failureOf([&] { readFrom(kSingle | 1, {1, 0}); }), HasSubstr("was deleted"));
}

TEST_F(LongValueReaderOfChain, RejectsAnUnknownKind) {
    EXPECT_THAT(test::failureOf([&] { readFrom(0xC0000001, {1, 0}); }), HasSubstr("unknown kind"));
}

} // namespace
} // namespace jet
