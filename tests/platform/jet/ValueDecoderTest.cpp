// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/ValueDecoder.h"

#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using basic::Variant;
using testing::HasSubstr;

// Decodes `hex` as the only field, a variable one, of a row.
Variant decode(ColumnType type, std::string_view hex, std::uint8_t scale = 0) {
    const test::Bytes field = test::fromHex(hex);
    const auto end = static_cast<std::uint16_t>(2 + field.size());
    const test::Bytes row =
        test::joined({test::u16(1), field, test::u16(end), test::u16(2), test::u16(1), test::fromHex("01")});
    Column column;
    column.name = "F";
    column.type = type;
    column.scale = scale;
    test::SourceOf source{test::Image(1)};
    ValueDecoder decoder(source.pages);
    return decoder.value(RowView(ByteView(row, {"a.mdb", "T", 6, 0})), column);
}

TEST(ValueDecoder, ReadsIntegers) {
    EXPECT_EQ(decode(ColumnType::Byte, "FF"), Variant(std::uint8_t{255}));
    EXPECT_EQ(decode(ColumnType::Integer, "FE FF"), Variant(std::int16_t{-2}));
    EXPECT_EQ(decode(ColumnType::Long, "FD FF FF FF"), Variant(std::int32_t{-3}));
}

TEST(ValueDecoder, ReadsFloatingPoint) {
    EXPECT_EQ(decode(ColumnType::Single, "00 00 20 C0"), Variant(-2.5F));
    EXPECT_EQ(decode(ColumnType::Double, "00 00 00 00 00 00 04 C0"), Variant(-2.5));
}

TEST(ValueDecoder, ReadsCurrencyAsTenThousandths) {
    EXPECT_EQ(decode(ColumnType::Currency, "39 30 00 00 00 00 00 00"), Variant(basic::Currency{12345}));
    EXPECT_EQ(decode(ColumnType::Currency, "FF FF FF FF FF FF FF FF"), Variant(basic::Currency{-1}));
}

TEST(ValueDecoder, ReadsDatesBeforeTheEpoch) {
    EXPECT_EQ(decode(ColumnType::Date, "00 00 00 00 00 00 F4 BF"), Variant(basic::Date{-1.25}));
    EXPECT_EQ(decode(ColumnType::Date, "00 00 00 00 50 67 E5 40"), Variant(basic::Date{43834.5}));
}

TEST(ValueDecoder, ReadsGuidBytesAsStored) {
    basic::Guid guid;
    for (std::size_t i = 0; i < 16; ++i)
        guid.bytes[i] = static_cast<std::uint8_t>(i);
    EXPECT_EQ(decode(ColumnType::Guid, "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F"), Variant(guid));
}

TEST(ValueDecoder, ReadsNumericMostSignificantWordFirst) {
    const Variant value =
        decode(ColumnType::Numeric, "80  01 00 00 00  02 00 00 00  03 00 00 00  39 30 00 00", 4);
    EXPECT_EQ(value, Variant(basic::Decimal{true, {1, 2, 3, 12345}, 4}));
    EXPECT_FALSE(
        std::get<basic::Decimal>(decode(ColumnType::Numeric, "00 00000000 00000000 00000000 01000000"))
            .negative);
    EXPECT_TRUE(
        std::get<basic::Decimal>(decode(ColumnType::Numeric, "01 00000000 00000000 00000000 01000000"))
            .negative);
}

TEST(ValueDecoder, ReadsTextAndBinary) {
    EXPECT_EQ(decode(ColumnType::Text, "FF FE 41"), Variant(std::string("A")));
    EXPECT_EQ(decode(ColumnType::Text, ""), Variant(std::string()));
    EXPECT_EQ(decode(ColumnType::Binary, "00 FF 01"), Variant(basic::Binary{0x00, 0xFF, 0x01}));
}

TEST(ValueDecoder, ReadsInlineMemoAndOle) {
    EXPECT_EQ(decode(ColumnType::Memo, "02 00 00 80 00000000 00000000 41 00"), Variant(std::string("A")));
    EXPECT_EQ(decode(ColumnType::Ole, "02 00 00 80 00000000 00000000 41 00"),
              Variant(basic::Binary{0x41, 0x00}));
    EXPECT_EQ(decode(ColumnType::Memo, "00 00 00 00"), Variant(std::string()));
}

TEST(ValueDecoder, HandsOutUnknownTypesAsBytes) {
    EXPECT_EQ(decode(static_cast<ColumnType>(0x12), "01 02"), Variant(basic::Binary{1, 2}));
}

TEST(ValueDecoder, RejectsAFieldTooShortForItsType) {
    for (const ColumnType type :
         {ColumnType::Byte, ColumnType::Integer, ColumnType::Long, ColumnType::Currency, ColumnType::Single,
          ColumnType::Double, ColumnType::Date, ColumnType::Guid, ColumnType::Numeric})
        EXPECT_THAT(test::failureOf([&] { decode(type, ""); }), HasSubstr("table T, page 6, row 0: "));
    EXPECT_THAT(test::failureOf([&] { decode(ColumnType::Numeric, "00 00"); }), HasSubstr("beyond the end"));
}

TEST(ValueDecoder, FixedTextIsNeverCompressed) {
    Column column;
    column.type = ColumnType::Text;
    column.flags = format::column::kFixed;
    column.length = 4;
    const test::Bytes row = test::fromHex("01 00 FF FE 41 00 01");
    const RowView view(ByteView(row, {}));
    test::SourceOf source{test::Image(1)};
    ValueDecoder decoder(source.pages);
    EXPECT_EQ(decoder.value(view, column), Variant(std::string("\xEF\xBB\xBF"
                                                               "A")));
    std::string text;
    EXPECT_TRUE(decoder.appendTextOf(text, view, column));
    EXPECT_EQ(text, "\xEF\xBB\xBF"
                    "A");
}

TEST(ValueDecoder, AppendsNothingForANull) {
    const test::Bytes bytes = test::fromHex("01 00 00");
    Column column;
    column.type = ColumnType::Text;
    test::SourceOf source{test::Image(1)};
    std::string text = "x";
    EXPECT_FALSE(ValueDecoder(source.pages).appendTextOf(text, RowView(ByteView(bytes, {})), column));
    EXPECT_EQ(text, "x");
}

} // namespace
} // namespace jet
