// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/RowView.h"

#include "platform/jet/ValueDecoder.h"
#include "tests/platform/jet/FailureOf.h"
#include "tests/platform/jet/SourceOf.h"

#include <gmock/gmock.h>

namespace jet {
namespace {

using testing::HasSubstr;

constexpr std::string_view kVector =
    "05 00 | 03 00 00 00 00 00 00 00 50 67 E5 40 | FF FE 2B 34 39 33 30 30 30 30 "
    "30 33 | 1A 00 | 1A 00 0E 00 | 02 00 | 1B";

class RowViewOfLog : public testing::Test {
protected:
    RowView view(std::string_view hex) {
        bytes = test::fromHex(hex);
        return RowView(ByteView(bytes, {"a.mdb", "Log", 6, 0}));
    }
    // As the vector, with the byte at `at` replaced.
    RowView damaged(std::size_t at, unsigned value) {
        bytes = test::fromHex(kVector);
        bytes[at] = static_cast<std::byte>(value);
        return RowView(ByteView(bytes, {"a.mdb", "Log", 6, 0}));
    }

    test::Bytes bytes;
    std::vector<Column> columns = test::logColumns();
    const Column& id = columns[0];
    const Column& caller = columns[1];
    const Column& note = columns[2];
    const Column& when = columns[3];
    const Column& done = columns[4];
};

TEST_F(RowViewOfLog, CracksTheKnownRow) {
    const RowView row = view(kVector);
    test::SourceOf source{test::Image(1)};
    ValueDecoder decoder(source.pages);
    EXPECT_EQ(decoder.value(row, id), basic::Variant(std::int32_t{3}));
    EXPECT_EQ(decoder.value(row, caller), basic::Variant(std::string("+493000003")));
    EXPECT_EQ(decoder.value(row, note), basic::Variant(basic::Null{}));
    EXPECT_EQ(decoder.value(row, when), basic::Variant(basic::Date{43834.5})); // 2020-01-04 12:00
    EXPECT_EQ(decoder.value(row, done), basic::Variant(true));
}

TEST_F(RowViewOfLog, ColumnAddedAfterTheRowIsNull) {
    Column later = caller;
    later.number = 5;
    later.variableIndex = 2;
    EXPECT_TRUE(view(kVector).isNull(later));
    EXPECT_TRUE(view(kVector).field(later).empty());
}

TEST_F(RowViewOfLog, VariableColumnBeyondTheRowsTableIsEmpty) {
    Column beyond = caller;
    beyond.variableIndex = 2;
    EXPECT_TRUE(view(kVector).field(beyond).empty());
    beyond.variableIndex = 0xFFFF;
    EXPECT_TRUE(view(kVector).field(beyond).empty());
}

TEST_F(RowViewOfLog, RowWithoutVariableColumnsNeedsNoTable) {
    const RowView row = view("01 00 07 00 00 00 01");
    EXPECT_EQ(ByteView(row.field(id), {}).u32(0), 7U);
}

TEST_F(RowViewOfLog, FixedTypeMayLieInTheVariableArea) {
    Column variable = id;
    variable.flags = 0x06;
    variable.variableIndex = 0;
    const RowView row = view("01 00 09 00 00 00 06 00 02 00 01 00 01");
    EXPECT_EQ(ByteView(row.field(variable), {}).u32(0), 9U);
}

TEST_F(RowViewOfLog, RejectsARowShorterThanItsNullMask) {
    EXPECT_THAT(test::failureOf([&] { view("05 00"); }), HasSubstr("page 6, row 0: the row is too short"));
    EXPECT_THAT(test::failureOf([&] { view("05"); }), HasSubstr("beyond the end"));
    EXPECT_THAT(test::failureOf([&] { view("FF FF 00 00"); }), HasSubstr("too short for its 65535 columns"));
}

TEST_F(RowViewOfLog, RejectsAVariableOffsetBeyondTheRow) {
    EXPECT_THAT(test::failureOf([&] { damaged(30, 0xFF).field(caller); }), HasSubstr("has the bounds"));
    EXPECT_THAT(test::failureOf([&] { damaged(28, 0x1B).field(caller); }),
                HasSubstr("has the bounds 14 to 27"));
}

TEST_F(RowViewOfLog, RejectsAVariableColumnThatEndsBeforeItBegins) {
    EXPECT_THAT(test::failureOf([&] { damaged(30, 0x1B).field(caller); }),
                HasSubstr("has the bounds 27 to 26"));
}

TEST_F(RowViewOfLog, RejectsAVariableOffsetInTheColumnCount) {
    EXPECT_THAT(test::failureOf([&] { damaged(30, 0x01).field(caller); }),
                HasSubstr("has the bounds 1 to 26"));
}

TEST_F(RowViewOfLog, RejectsMoreVariableColumnsThanTheRowHolds) {
    EXPECT_THAT(test::failureOf([&] { damaged(32, 0x10).field(caller); }),
                HasSubstr("its 16 variable columns"));
    EXPECT_THAT(test::failureOf([&] { damaged(33, 0xFF).field(caller); }), HasSubstr("variable columns"));
}

TEST_F(RowViewOfLog, RejectsARowTooShortForAnyVariableColumn) {
    Column first = caller;
    first.number = 0;
    EXPECT_THAT(test::failureOf([&] { view("01 00 01").field(first); }), HasSubstr("too short"));
}

TEST_F(RowViewOfLog, RejectsAFixedColumnBeyondTheRow) {
    Column beyond = id;
    beyond.fixedOffset = 30;
    EXPECT_THAT(test::failureOf([&] { view(kVector).field(beyond); }),
                HasSubstr("column ID lies beyond the end"));
    beyond.fixedOffset = 0xFFFF;
    EXPECT_THAT(test::failureOf([&] { view(kVector).field(beyond); }),
                HasSubstr("column ID lies beyond the end"));
}

} // namespace
} // namespace jet
