// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/sql/DateLiteral.h"

#include "platform/basic/Calendar.h"

#include <gtest/gtest.h>

namespace jet::sql {
namespace {

std::optional<basic::CalendarTime> read(std::string_view text) {
    const auto date = parseDateLiteral(text);
    return date ? basic::toCalendar(*date) : std::nullopt;
}

TEST(DateLiteral, ReadsMonthFirstAndYearFirst) {
    EXPECT_EQ(read("5/6/2024"), (basic::CalendarTime{2024, 5, 6, 0, 0, 0}));
    EXPECT_EQ(read("2024-05-06"), (basic::CalendarTime{2024, 5, 6, 0, 0, 0}));
    EXPECT_EQ(read(" 12/31/1899 "), (basic::CalendarTime{1899, 12, 31, 0, 0, 0}));
}

TEST(DateLiteral, ReadsTimesOfBothClocks) {
    EXPECT_EQ(read("5/6/2024 17:08:09"), (basic::CalendarTime{2024, 5, 6, 17, 8, 9}));
    EXPECT_EQ(read("5/6/2024 5:08:09 pm"), (basic::CalendarTime{2024, 5, 6, 17, 8, 9}));
    EXPECT_EQ(read("5/6/2024 12:00 AM"), (basic::CalendarTime{2024, 5, 6, 0, 0, 0}));
    EXPECT_EQ(read("5/6/2024 12:00PM"), (basic::CalendarTime{2024, 5, 6, 12, 0, 0}));
}

TEST(DateLiteral, TimeAloneLiesOnDayZero) {
    EXPECT_EQ(read("17:08"), (basic::CalendarTime{1899, 12, 30, 17, 8, 0}));
}

TEST(DateLiteral, RefusesWhatDoesNotExist) {
    for (const char* text : {"",          " ",
                             "1",         "1/2",
                             "1/2/3/4",   "13/1/2024",
                             "2/30/2024", "0/1/2024",
                             "1/0/2024",  "2024-13-01",
                             "24:00",     "1:60",
                             "1:2:60",    "13:00 PM",
                             "0:10 AM",   "1/1/20244",
                             "a/b/c",     "1/1/2024 x",
                             "1/1/-1",    "1//2024",
                             "PM",        "1/1/99999999999",
                             "-1:00",     "1/1/50"})
        EXPECT_EQ(read(text), std::nullopt) << text;
}

} // namespace
} // namespace jet::sql
