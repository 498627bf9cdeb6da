// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors/ErrorRecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>
#include <vector>

namespace errors {
namespace {

constexpr basic::CalendarTime kTime{2005, 3, 14, 17, 5, 9};

std::string firstLineOf(std::int32_t number) {
    const std::string text = recordText({"m", "p", number, "d", 0, kTime});
    return text.substr(0, text.find("\r\n"));
}

TEST(ErrorRecord, HasFiveLinesExactToTheColumn) {
    EXPECT_EQ(recordText({"frmMain", "LoadList", 3265, "Item cannot be found", 120, kTime}),
              "***** Error 03265 at: 2005-03-14 17:05:09\r\n"
              "  *** Module:         frmMain\r\n"
              "  *** Procedure:      LoadList\r\n"
              "  *** Line Number:    120\r\n"
              "  *** Description:    Item cannot be found\r\n");
}

TEST(ErrorRecord, ValuesBeginInColumnTwentyThree) {
    std::istringstream lines(recordText({"X", "X", 1, "X", 1, kTime}));
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line))
        EXPECT_EQ(line.substr(22).size(), 2U) << line << " is a value and CR";
}

TEST(ErrorRecord, NumbersHaveAtLeastFiveDigits) {
    EXPECT_EQ(firstLineOf(13), "***** Error 00013 at: 2005-03-14 17:05:09");
    EXPECT_EQ(firstLineOf(35602), "***** Error 35602 at: 2005-03-14 17:05:09");
    EXPECT_EQ(firstLineOf(123456), "***** Error 123456 at: 2005-03-14 17:05:09");
    EXPECT_EQ(firstLineOf(-13), "***** Error -00013 at: 2005-03-14 17:05:09");
}

TEST(ErrorRecord, ErrorNumberZeroIsLoggedAsFiveZeros) {
    EXPECT_EQ(firstLineOf(0), "***** Error 00000 at: 2005-03-14 17:05:09");
}

TEST(ErrorRecord, ANegativeNumberKeepsItsSignAndAllItsDigits) {
    EXPECT_EQ(firstLineOf(-2147467259), "***** Error -2147467259 at: 2005-03-14 17:05:09");
    EXPECT_EQ(firstLineOf(std::numeric_limits<std::int32_t>::min()),
              "***** Error -2147483648 at: 2005-03-14 17:05:09");
}

TEST(ErrorRecord, AProcedureWithoutLineNumbersLogsZero) {
    EXPECT_NE(recordText({"m", "p", 1, "d", 0, kTime}).find("\r\n  *** Line Number:    0\r\n"),
              std::string::npos);
}

TEST(ErrorRecord, ADescriptionWithLineBreaksKeepsTheRecordAtFiveLines) {
    const std::string text = recordText({"m", "p", 75, "one\r\ntwo\nthree\rfour\n\nfive\r\n", 0, kTime});
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), 5);
    EXPECT_TRUE(text.ends_with("  *** Description:    one two three four  five \r\n")) << text;
}

TEST(ErrorRecord, TimeIsOnATwentyFourHourClockWithLeadingZeros) {
    EXPECT_EQ(timeText({2026, 1, 2, 0, 4, 5}), "2026-01-02 00:04:05");
    EXPECT_EQ(timeText({2026, 12, 31, 23, 59, 59}), "2026-12-31 23:59:59");
}

} // namespace
} // namespace errors
