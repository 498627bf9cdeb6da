// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/Calendar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace basic {
namespace {

CalendarTime at(double days) {
    const auto time = toCalendar({days});
    EXPECT_TRUE(time.has_value()) << days;
    return time.value_or(CalendarTime{});
}

TEST(Calendar, DayZeroIsThe30thOfDecember1899) {
    EXPECT_EQ(at(0), (CalendarTime{1899, 12, 30, 0, 0, 0}));
}

TEST(Calendar, ANegativeDateHasAPositiveTimeOfDay) {
    EXPECT_EQ(at(-1), (CalendarTime{1899, 12, 29, 0, 0, 0}));
    EXPECT_EQ(at(-1.25), (CalendarTime{1899, 12, 29, 6, 0, 0}));
    EXPECT_EQ(at(-0.25), (CalendarTime{1899, 12, 30, 6, 0, 0}));
}

TEST(Calendar, KnowsLeapYears) {
    EXPECT_EQ(at(36585), (CalendarTime{2000, 2, 29, 0, 0, 0}));
    EXPECT_EQ(at(36586), (CalendarTime{2000, 3, 1, 0, 0, 0}));
    EXPECT_EQ(at(60), (CalendarTime{1900, 2, 28, 0, 0, 0}));
    EXPECT_EQ(at(61), (CalendarTime{1900, 3, 1, 0, 0, 0}));
    EXPECT_EQ(at(45351.5), (CalendarTime{2024, 2, 29, 12, 0, 0}));
}

TEST(Calendar, ReachesFromYear100To9999) {
    EXPECT_EQ(at(-657434), (CalendarTime{100, 1, 1, 0, 0, 0}));
    EXPECT_EQ(at(-657434.5), (CalendarTime{100, 1, 1, 12, 0, 0}));
    EXPECT_EQ(at(2958465), (CalendarTime{9999, 12, 31, 0, 0, 0}));
    EXPECT_FALSE(toCalendar({-657435}));
    EXPECT_FALSE(toCalendar({2958466}));
}

TEST(Calendar, RoundsToTheSecondAndCarriesIntoTheNextDay) {
    EXPECT_EQ(at(1 + 0.4 / 86400), (CalendarTime{1899, 12, 31, 0, 0, 0}));
    EXPECT_EQ(at(1 + 0.6 / 86400), (CalendarTime{1899, 12, 31, 0, 0, 1}));
    EXPECT_EQ(at(1 + 86399.6 / 86400), (CalendarTime{1900, 1, 1, 0, 0, 0}));
    EXPECT_EQ(at(-2 - 86399.6 / 86400), (CalendarTime{1899, 12, 29, 0, 0, 0}));
}

TEST(Calendar, TheLastSecondOfAllDoesNotCarry) {
    EXPECT_EQ(at(2958465 + 86399.9 / 86400), (CalendarTime{9999, 12, 31, 23, 59, 59}));
}

TEST(Calendar, WhatIsNoNumberIsNoDate) {
    EXPECT_FALSE(toCalendar({std::nan("")}));
    EXPECT_FALSE(toCalendar({std::numeric_limits<double>::infinity()}));
    EXPECT_FALSE(toCalendar({-1e300}));
}

TEST(Calendar, ADateComesBackFromItsCalendarTime) {
    for (const double days : {-657434.75, -1.25, 0.0, 0.5, 1.0, 36585.125, 45351.5, 2958465.0})
        EXPECT_DOUBLE_EQ(toDate(at(days)).days, days);
}

TEST(Calendar, CarriesTimesOutsideOfTheirRange) {
    EXPECT_DOUBLE_EQ(toDate({2024, 2, 29, 24, 0, 0}).days, 45352);
    EXPECT_DOUBLE_EQ(toDate({2024, 2, 29, 0, 0, -1}).days, 45350 + 86399.0 / 86400);
    EXPECT_DOUBLE_EQ(toDate({2024, 2, 30, 0, 0, 0}).days, 45352);
}

} // namespace
} // namespace basic
