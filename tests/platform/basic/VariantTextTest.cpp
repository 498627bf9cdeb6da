// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/VariantText.h"

#include "platform/basic/RuntimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace basic {
namespace {

std::string text(const Variant& value) {
    return toText(value, DateTimeFormat{});
}

std::string german(const Variant& value) {
    DateTimeFormat format;
    format.decimalSeparator = ",";
    return toText(value, format);
}

TEST(VariantText, NullIsError94) {
    try {
        text(Null{});
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), kInvalidUseOfNull);
    }
}

TEST(VariantText, WritesIntegersInDecimal) {
    EXPECT_EQ(text(std::uint8_t{200}), "200");
    EXPECT_EQ(text(std::int16_t{-7}), "-7");
    EXPECT_EQ(text(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(VariantText, WritesBooleansAsWords) {
    EXPECT_EQ(text(true), "True");
    EXPECT_EQ(text(false), "False");
}

TEST(VariantText, WritesDoublesWithUpTo15Digits) {
    EXPECT_EQ(text(0.1), "0.1");
    EXPECT_EQ(text(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(text(-2.5), "-2.5");
    EXPECT_EQ(text(100.0), "100");
    EXPECT_EQ(text(0.0), "0");
    EXPECT_EQ(text(-0.0), "0");
    EXPECT_EQ(text(123456789012345.0), "123456789012345");
    EXPECT_EQ(german(1.5), "1,5");
}

TEST(VariantText, WritesSinglesWithUpTo7Digits) {
    EXPECT_EQ(text(0.1F), "0.1");
    EXPECT_EQ(text(1.0F / 3), "0.3333333");
    EXPECT_EQ(text(1234567.0F), "1234567");
    EXPECT_EQ(text(12345678.0F), "1.234568E+07");
}

TEST(VariantText, UsesAnExponentWhereTheDigitsDoNotSuffice) {
    EXPECT_EQ(text(1e15), "1E+15");
    EXPECT_EQ(text(1234567890123456.0), "1.23456789012346E+15");
    EXPECT_EQ(text(1e-5), "0.00001");
    EXPECT_EQ(text(1e-5 / 3), "3.33333333333333E-06");
    EXPECT_EQ(text(-1.5e300), "-1.5E+300");
    EXPECT_EQ(german(1.25e20), "1,25E+20");
}

TEST(VariantText, NamesWhatIsNoNumber) {
    EXPECT_EQ(text(std::numeric_limits<double>::infinity()), "1.#INF");
    EXPECT_EQ(text(-std::numeric_limits<double>::infinity()), "-1.#INF");
    EXPECT_EQ(text(std::numeric_limits<float>::quiet_NaN()), "1.#QNAN");
}

TEST(VariantText, WritesCurrencyWithoutTrailingZeros) {
    EXPECT_EQ(text(Currency{12500}), "1.25");
    EXPECT_EQ(text(Currency{-1}), "-0.0001");
    EXPECT_EQ(text(Currency{30000}), "3");
    EXPECT_EQ(text(Currency{0}), "0");
    EXPECT_EQ(text(Currency{std::numeric_limits<std::int64_t>::min()}), "-922337203685477.5808");
    EXPECT_EQ(german(Currency{12500}), "1,25");
}

TEST(VariantText, WritesDecimalsExactly) {
    EXPECT_EQ(text(Decimal{true, {0, 0, 0, 12345}, 2}), "-123.45");
    EXPECT_EQ(text(Decimal{false, {0, 0, 0, 5}, 3}), "0.005");
    EXPECT_EQ(text(Decimal{false, {0, 0, 0, 1500}, 3}), "1.5");
    EXPECT_EQ(text(Decimal{true, {0, 0, 0, 0}, 2}), "0");
    EXPECT_EQ(text(Decimal{false, {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, 0}),
              "340282366920938463463374607431768211455");
    EXPECT_EQ(german(Decimal{false, {0, 0, 1, 0}, 28}), "0,0000000000000000004294967296");
}

TEST(VariantText, WritesIdentifiersInBraces) {
    const Guid guid{
        {0x33, 0x22, 0x11, 0x00, 0x55, 0x44, 0x77, 0x66, 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}};
    EXPECT_EQ(text(guid), "{00112233-4455-6677-8899-AABBCCDDEEFF}");
}

TEST(VariantText, WritesBinaryAsHexadecimal) {
    EXPECT_EQ(text(Binary{0x00, 0xAF, 0x10}), "00AF10");
    EXPECT_EQ(text(Binary{}), "");
}

TEST(VariantText, WritesDatesAndTextAsTheyAre) {
    EXPECT_EQ(text(Date{36585.5}), "2000-02-29 12:00:00");
    EXPECT_EQ(text(std::string("Anrüfe")), "Anrüfe");
}

} // namespace
} // namespace basic
