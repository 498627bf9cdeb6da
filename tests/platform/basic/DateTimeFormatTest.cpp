// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/DateTimeFormat.h"

#include <gtest/gtest.h>

#include <cmath>

namespace basic {
namespace {

DateTimeFormat german() {
    DateTimeFormat format;
    format.shortDate = "dd.MM.yyyy";
    return format;
}

DateTimeFormat american() {
    DateTimeFormat format;
    format.shortDate = "M/d/yyyy";
    format.longTime = "h:mm:ss AP";
    return format;
}

TEST(DateText, IsShortDateBlankLongTime) {
    const Date date = toDate({2004, 3, 9, 14, 5, 7});
    EXPECT_EQ(toText(date, german()), "09.03.2004 14:05:07");
    EXPECT_EQ(toText(date, american()), "3/9/2004 2:05:07 PM");
    EXPECT_EQ(toText(date, DateTimeFormat{}), "2004-03-09 14:05:07");
}

TEST(DateText, LeavesOutTheTimeAtMidnight) {
    EXPECT_EQ(toText(toDate({2004, 3, 9}), german()), "09.03.2004");
}

TEST(DateText, ATimeThatRoundsToMidnightIsMidnight) {
    EXPECT_EQ(toText(Date{1 + 0.3 / 86400}, german()), "31.12.1899");
}

TEST(DateText, LeavesOutTheDateOnDayZero) {
    EXPECT_EQ(toText(Date{0.25}, german()), "06:00:00");
    EXPECT_EQ(toText(Date{-0.25}, german()), "06:00:00");
    EXPECT_EQ(toText(Date{0}, american()), "12:00:00 AM");
}

TEST(DateText, ReachesFromTheFirstToTheLastDay) {
    EXPECT_EQ(toText(Date{-1.25}, german()), "29.12.1899 06:00:00");
    EXPECT_EQ(toText(Date{-657434}, german()), "01.01.0100");
    EXPECT_EQ(toText(toDate({9999, 12, 31, 23, 59, 59}), german()), "31.12.9999 23:59:59");
}

TEST(DateText, SaysSoWhenTheNumberIsNoDate) {
    DateTimeFormat format = german();
    format.invalidDate = "(kein Datum)";
    EXPECT_EQ(toText(Date{std::nan("")}, format), "(kein Datum)");
    EXPECT_EQ(toText(Date{1e30}, german()), "(invalid date)");
}

TEST(Pattern, FillsEveryLetter) {
    const CalendarTime time{2004, 3, 9, 4, 5, 6};
    const DateTimeFormat format;
    EXPECT_EQ(formatPattern(time, "d dd M MM yy yyyy y", format), "9 09 3 03 04 2004 2004");
    EXPECT_EQ(formatPattern(time, "H HH m mm s ss h hh", format), "4 04 5 05 6 06 4 04");
    EXPECT_EQ(formatPattern(time, "MMM", format), "03");
}

TEST(Pattern, TwelveHourClockRunsFromTwelveToEleven) {
    DateTimeFormat format;
    format.amText = "vorm.";
    format.pmText = "nachm.";
    EXPECT_EQ(formatPattern({2004, 1, 1, 0, 0, 0}, "h AP", format), "12 vorm.");
    EXPECT_EQ(formatPattern({2004, 1, 1, 11, 0, 0}, "hh ap", format), "11 vorm.");
    EXPECT_EQ(formatPattern({2004, 1, 1, 12, 0, 0}, "h a", format), "12 nachm.");
    EXPECT_EQ(formatPattern({2004, 1, 1, 13, 0, 0}, "h A", format), "1 nachm.");
}

TEST(Pattern, WithoutHalfDaysHoursCountTo23) {
    EXPECT_EQ(formatPattern({2004, 1, 1, 13, 0, 0}, "h 'Uhr am'", DateTimeFormat{}), "13 Uhr am");
    EXPECT_EQ(formatPattern({2004, 1, 1, 0, 0, 0}, "h", DateTimeFormat{}), "0");
}

TEST(Pattern, QuotedTextStandsForItself) {
    const CalendarTime time{2004, 3, 9, 4, 5, 6};
    EXPECT_EQ(formatPattern(time, "d'd'M", DateTimeFormat{}), "9d3");
    EXPECT_EQ(formatPattern(time, "h 'o''clock'", DateTimeFormat{}), "4 o'clock");
    EXPECT_EQ(formatPattern(time, "''d", DateTimeFormat{}), "'9");
    EXPECT_EQ(formatPattern(time, "d 'open", DateTimeFormat{}), "9 open");
}

TEST(Pattern, LeavesOutTheTimeZone) {
    EXPECT_EQ(formatPattern({2004, 3, 9, 4, 5, 6}, "HH:mm:ss t", DateTimeFormat{}), "04:05:06");
}

} // namespace
} // namespace basic
