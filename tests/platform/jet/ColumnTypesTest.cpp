// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/TableWriter.h"
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/jet/WrittenDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace jet {
namespace {

using namespace test;
using basic::Null;
using testing::HasSubstr;

TableSpec everyType() {
    return {.name = "Types",
            .columns = {{.name = "ID", .type = ColumnType::Long, .autonumber = true},
                        {.name = "Flag", .type = ColumnType::Boolean},
                        {.name = "Small", .type = ColumnType::Byte},
                        {.name = "Middle", .type = ColumnType::Integer},
                        {.name = "Large", .type = ColumnType::Long},
                        {.name = "Money", .type = ColumnType::Currency},
                        {.name = "Float", .type = ColumnType::Single},
                        {.name = "Real", .type = ColumnType::Double},
                        {.name = "Moment", .type = ColumnType::Date},
                        {.name = "Bytes", .type = ColumnType::Binary, .size = 20},
                        {.name = "Plain", .type = ColumnType::Text, .size = 20},
                        {.name = "Packed", .type = ColumnType::Text, .size = 20, .compressed = true},
                        {.name = "Object", .type = ColumnType::Ole},
                        {.name = "Note", .type = ColumnType::Memo},
                        {.name = "Key", .type = ColumnType::Guid},
                        {.name = "Exact", .type = ColumnType::Numeric, .precision = 10, .scale = 3}},
            .indexes = {{.name = "PrimaryKey", .columns = {{"ID"}}, .primaryKey = true}}};
}

basic::Decimal decimal(std::uint32_t low, bool negative) {
    return {negative, {0, 0, 0, low}, 3};
}

Values largest() {
    return {std::int32_t{1},
            true,
            std::uint8_t{255},
            std::int16_t{32767},
            std::numeric_limits<std::int32_t>::max(),
            basic::Currency{std::numeric_limits<std::int64_t>::max()},
            1.5F,
            -0.1,
            basic::Date{46000.25},
            basic::Binary{0, 1, 254, 255},
            std::string("Grün"),
            std::string("Grün"),
            basic::Binary(5000, 0xAB),
            std::string("note"),
            basic::Guid{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}},
            decimal(1234567, true)};
}

Values smallest() {
    return {std::int32_t{2},
            false,
            std::uint8_t{0},
            std::int16_t{-32768},
            std::numeric_limits<std::int32_t>::min(),
            basic::Currency{-12345},
            -1.5F,
            1e300,
            basic::Date{-1.25},
            basic::Binary{},
            std::string(),
            std::string(),
            basic::Binary{},
            std::string(),
            basic::Guid{},
            decimal(0, false)};
}

Values nothing() {
    Values row(16, Null{});
    row[0] = std::int32_t{3};
    return row;
}

class ColumnTypes : public testing::Test {
protected:
    ColumnTypes() { m_database.createTable(everyType()); }
    WrittenDatabase m_database;
};

TEST_F(ColumnTypes, EveryTypeReadsBackAtItsLimitsAndAsNull) {
    m_database.insert("Types", {largest(), smallest(), nothing()});
    const std::vector<Values> rows = m_database.rows("Types");
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], largest());
    EXPECT_EQ(rows[1], smallest());
    Values expected = nothing();
    expected[1] = false; // a Boolean knows no Null
    EXPECT_EQ(rows[2], expected);
    EXPECT_NO_THROW(checkDatabase(m_database.file()));
}

TEST_F(ColumnTypes, OtherProgramsReadTheSameValues) {
    Values first = largest();
    first[9] = basic::Binary{16, 1, 254, 255}; // mdb-export takes a leading zero for the end
    m_database.insert("Types", {first, nothing()});
    const std::string csv =
        m_database.tool("mdb-export", "-H -b hex -0 NULL -T '%Y-%m-%d %H:%M:%S'", "Types");
    std::string object = "\"";
    for (int i = 0; i < 5000; ++i)
        object += "AB";
    // The text {04030201-0605-0807-090A0B0C0D0E0F10}, as this program writes it, which it takes for bytes
    // here.
    const std::string guid = "7B30343033303230312D303630352D303830372D303930413042304330443045304631307D";
    EXPECT_EQ(csv,
              "1,1,255,32767,2147483647,922337203685477.5807,1.5,-0.1,\"2025-12-09 06:00:00\",\"1001FEFF\","
              "\"Grün\",\"Grün\"," +
                  object + "\",\"note\",\"" + guid +
                  "\",-1234.567\n"
                  "3,0,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL\n");
}

TEST_F(ColumnTypes, OtherProgramsSeeTheDeclaredTypes) {
    const std::string schema = m_database.tool("mdb-schema", "--no-relations", "access");
    for (const char* line :
         {"[ID]\t\t\tLong Integer", "[Flag]\t\t\tBoolean", "[Small]\t\t\tByte", "[Middle]\t\t\tInteger",
          "[Money]\t\t\tCurrency", "[Float]\t\t\tSingle", "[Real]\t\t\tDouble", "[Moment]\t\t\tDateTime",
          "[Plain]\t\t\tText (20)", "[Object]\t\t\tOLE", "[Note]\t\t\tMemo", "[Key]\t\t\tReplication ID",
          "[Exact]\t\t\tNumeric (10, 3)"})
        EXPECT_THAT(schema, HasSubstr(line));
}

TEST_F(ColumnTypes, NumbersAreWidenedAndRoundedHalfToEven) {
    Values row = nothing();
    row[2] = std::int32_t{7};
    row[3] = 2.5;
    row[4] = basic::Currency{35000};
    row[5] = std::int16_t{-3};
    row[7] = std::int32_t{9};
    row[8] = 45000.5;
    row[15] = basic::Currency{12300};
    m_database.insert("Types", {row});
    const Values read = m_database.rows("Types").at(0);
    EXPECT_EQ(read[2], basic::Variant(std::uint8_t{7}));
    EXPECT_EQ(read[3], basic::Variant(std::int16_t{2}));
    EXPECT_EQ(read[4], basic::Variant(std::int32_t{4}));
    EXPECT_EQ(read[5], basic::Variant(basic::Currency{-30000}));
    EXPECT_EQ(read[7], basic::Variant(9.0));
    EXPECT_EQ(read[8], basic::Variant(basic::Date{45000.5}));
    EXPECT_EQ(read[15], basic::Variant(decimal(1230, false)));
}

TEST_F(ColumnTypes, ValuesThatDoNotFitAreRefusedAndNothingIsWritten) {
    struct Case {
        std::size_t column;
        basic::Variant value;
        std::int32_t error;
    };
    const std::vector<Case> cases{{2, std::int32_t{256}, basic::kOverflow},
                                  {2, std::int32_t{-1}, basic::kOverflow},
                                  {3, 32767.5, basic::kOverflow},
                                  {4, 3e9, basic::kOverflow},
                                  {4, std::string("4"), basic::kTypeMismatch},
                                  {4, std::numeric_limits<double>::quiet_NaN(), basic::kOverflow},
                                  {5, 1e16, basic::kOverflow},
                                  {6, 1e39, basic::kOverflow},
                                  {8, std::string("today"), basic::kTypeMismatch},
                                  {9, basic::Binary(21), basic::kProviderFailure},
                                  {9, std::string("x"), basic::kTypeMismatch},
                                  {10, std::string(21, 'x'), basic::kProviderFailure},
                                  {10, std::int32_t{1}, basic::kTypeMismatch},
                                  {10, std::string("\xFF"), basic::kInvalidProcedureCall},
                                  {10, std::string("\xEF\xBB\xBFx"), basic::kInvalidProcedureCall},
                                  {14, std::string("x"), basic::kTypeMismatch},
                                  {15, basic::Currency{1}, basic::kOverflow},
                                  {15, std::int32_t{10000000}, basic::kOverflow},
                                  {15, 0.5, basic::kTypeMismatch}};
    TableWriter writer(m_database.file(), "Types");
    for (const Case& entry : cases) {
        Values row = nothing();
        row[entry.column] = entry.value;
        EXPECT_EQ(basic::errorOf([&] { writer.insert(row); }), entry.error) << "column " << entry.column;
    }
    writer.flush();
    EXPECT_TRUE(m_database.rows("Types").empty());
}

} // namespace
} // namespace jet
