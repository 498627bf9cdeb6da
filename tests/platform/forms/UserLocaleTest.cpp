// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/UserLocale.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

const QLocale kGerman(QLocale::German, QLocale::Germany);
const QLocale kAmerican(QLocale::English, QLocale::UnitedStates);

TEST(UserLocale, ShortDatesHaveAYearOfFourDigits) {
    EXPECT_EQ(userDateTimeFormat(kGerman).shortDate, "dd.MM.yyyy");
    EXPECT_EQ(userDateTimeFormat(kAmerican).shortDate, "M/d/yyyy");
}

TEST(UserLocale, LongTimesHaveNoZone) {
    EXPECT_EQ(userDateTimeFormat(kGerman).longTime, "HH:mm:ss");
    EXPECT_EQ(userDateTimeFormat(kAmerican).longTime, "h:mm:ss AP");
}

TEST(UserLocale, NumbersAndHalvesOfTheDayAreTheUsers) {
    EXPECT_EQ(userDateTimeFormat(kGerman).decimalSeparator, ",");
    EXPECT_EQ(userDateTimeFormat(kAmerican).decimalSeparator, ".");
    EXPECT_EQ(userDateTimeFormat(kAmerican).amText, "AM");
    EXPECT_EQ(userDateTimeFormat(kAmerican).pmText, "PM");
}

TEST(UserLocale, TheLanguageBeginsWithItsCode) {
    EXPECT_EQ(userLanguageName(kGerman).substr(0, 2), "de");
    EXPECT_EQ(userLanguageName(kAmerican).substr(0, 2), "en");
}

TEST(UserLocale, DatesAreWrittenByTheUsersFormat) {
    // 2026-11-21 15:04:05
    const basic::Date date{46347.0 + (15 * 3600 + 4 * 60 + 5) / 86400.0};
    EXPECT_EQ(basic::toText(date, userDateTimeFormat(kGerman)), "21.11.2026 15:04:05");
    EXPECT_EQ(basic::toText(date, userDateTimeFormat(kAmerican)), "11/21/2026 3:04:05 PM");
}

TEST(UserLocale, LongDateAndTimeAreTheLocalesWithoutAZone) {
    const basic::Date noon{45000.5};
    EXPECT_EQ(longDateAndTime(noon, QLocale(QLocale::English, QLocale::UnitedStates)),
              "Wednesday, March 15, 2023 12:00:00 PM");
    EXPECT_EQ(longDateAndTime(noon, QLocale(QLocale::German, QLocale::Germany)),
              "Mittwoch, 15. März 2023 12:00:00");
}

TEST(UserLocale, LongDateOfANumberThatIsNoDateSaysSo) {
    EXPECT_EQ(longDateAndTime(basic::Date{1e9}, QLocale::c()), "(invalid date)");
}

} // namespace
} // namespace forms
