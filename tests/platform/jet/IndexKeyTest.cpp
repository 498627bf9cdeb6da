// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/IndexKey.h"

#include "tests/platform/basic/ErrorOf.h"

#include <gtest/gtest.h>

#include <limits>

namespace jet {
namespace {

using basic::errorOf;

Column columnOf(ColumnType type) {
    Column column;
    column.name = "C";
    column.type = type;
    column.sortOrder = format::header::kGeneralSortOrder;
    return column;
}

KeyBytes key(ColumnType type, const basic::Variant& value, bool ascending = true) {
    KeyBytes bytes;
    appendKeyPart(bytes, value, columnOf(type), ascending);
    return bytes;
}

std::string hex(const KeyBytes& key) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (const char byte : key) {
        text += kDigits[static_cast<std::uint8_t>(byte) >> 4U];
        text += kDigits[static_cast<std::uint8_t>(byte) & 15U];
    }
    return text;
}

TEST(IndexKey, FirstAutonumberIsWhatTheEngineWrites) {
    EXPECT_EQ(hex(key(ColumnType::Long, std::int32_t{1})), "7F80000001");
    EXPECT_EQ(hex(key(ColumnType::Long, std::int32_t{1}, false)), "807FFFFFFE");
}

TEST(IndexKey, TableNameIsWhatTheEngineWrites) {
    EXPECT_EQ(hex(key(ColumnType::Text, std::string("Tables"))), "7F6D4A4C5E516B0100");
    EXPECT_EQ(hex(key(ColumnType::Text, std::string("a_B 1."))), "7F4A2B034C07381C0100");
}

TEST(IndexKey, NullIsOneByteBelowOrAboveEverything) {
    EXPECT_EQ(hex(key(ColumnType::Long, basic::Null{})), "00");
    EXPECT_EQ(hex(key(ColumnType::Long, basic::Null{}, false)), "FF");
}

TEST(IndexKey, BooleanTrueComesFirst) {
    EXPECT_EQ(hex(key(ColumnType::Boolean, true)), "7F00");
    EXPECT_EQ(hex(key(ColumnType::Boolean, false)), "7FFF");
}

TEST(IndexKey, BinaryGoesInGroupsOfEight) {
    EXPECT_EQ(hex(key(ColumnType::Binary, basic::Binary{1, 2})), "7F010200000000000002");
    EXPECT_EQ(hex(key(ColumnType::Binary, basic::Binary(8, 1))), "7F010101010101010108");
    EXPECT_EQ(hex(key(ColumnType::Binary, basic::Binary(9, 1))), "7F010101010101010109010000000000000001");
}

template <typename Value>
void expectAscending(ColumnType type, const std::vector<Value>& values) {
    for (std::size_t i = 1; i < values.size(); ++i) {
        EXPECT_LT(key(type, values[i - 1]), key(type, values[i])) << i;
        EXPECT_GT(key(type, values[i - 1], false), key(type, values[i], false)) << i;
    }
}

TEST(IndexKey, KeysAreOrderedAsTheirValues) {
    expectAscending<std::uint8_t>(ColumnType::Byte, {0, 1, 127, 128, 255});
    expectAscending<std::int16_t>(ColumnType::Integer, {-32768, -1, 0, 1, 32767});
    expectAscending<std::int32_t>(ColumnType::Long,
                                  {std::numeric_limits<std::int32_t>::min(), -256, -1, 0, 255, 256});
    expectAscending<basic::Currency>(ColumnType::Currency, {{-10000}, {-1}, {0}, {1}, {10000}});
    expectAscending<float>(ColumnType::Single, {-1e30F, -1.5F, -1e-30F, 0, 1e-30F, 1.5F, 1e30F});
    expectAscending<double>(ColumnType::Double, {-1e300, -2, -1, 0, 1e-300, 1, 2, 1e300});
    expectAscending<basic::Date>(ColumnType::Date, {{-1.25}, {0}, {38143.5}, {38143.6}});
    expectAscending<std::string>(ColumnType::Text, {"", "0", "9", "A", "AA", "B", "Z"});
}

TEST(IndexKey, TextIgnoresCaseAndTrailingBlanks) {
    EXPECT_EQ(key(ColumnType::Text, std::string("Abc")), key(ColumnType::Text, std::string("aBC  ")));
    EXPECT_NE(key(ColumnType::Text, std::string("Abc")), key(ColumnType::Text, std::string(" Abc")));
}

TEST(IndexKey, WhatIsNotKnownIsRefused) {
    EXPECT_EQ(errorOf([] { key(ColumnType::Text, std::string("Ä")); }), basic::kProviderFailure);
    EXPECT_EQ(errorOf([] { key(ColumnType::Text, std::string("a-b")); }), basic::kProviderFailure);
    EXPECT_EQ(errorOf([] { key(ColumnType::Guid, basic::Guid{}); }), basic::kProviderFailure);
    EXPECT_EQ(errorOf([] { key(ColumnType::Numeric, basic::Decimal{}); }), basic::kProviderFailure);
    EXPECT_EQ(errorOf([] { key(ColumnType::Binary, basic::Binary{}); }), basic::kProviderFailure);
    Column other = columnOf(ColumnType::Text);
    other.sortVersion = 1;
    KeyBytes bytes;
    EXPECT_EQ(errorOf([&] { appendKeyPart(bytes, std::string("a"), other, true); }), basic::kProviderFailure);
}

} // namespace
} // namespace jet
