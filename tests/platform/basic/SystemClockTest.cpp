// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/SystemClock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>

namespace basic {
namespace {

// Sets the zone for one test; the C library reads it again at each conversion.
class Zone {
public:
    explicit Zone(const char* name) {
        ::setenv("TZ", name, 1);
        ::tzset();
    }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;
    ~Zone() {
        ::unsetenv("TZ");
        ::tzset();
    }
};

CalendarTime utcOf(std::time_t seconds) {
    const auto days = static_cast<double>(seconds) / 86400 + 25569;
    return toCalendar({days}).value_or(CalendarTime{});
}

TEST(SystemClock, TellsTheTimeOfTheZone) {
    const Zone zone("XXX-05:30"); // five and a half hours ahead
    const std::time_t before = std::time(nullptr) + 19800;
    const CalendarTime now = SystemClock().now();
    const std::time_t after = std::time(nullptr) + 19800;
    EXPECT_GE(now, utcOf(before));
    EXPECT_LE(now, utcOf(after));
}

TEST(SystemClock, GivesADateToo) {
    const SystemClock clock;
    const Date before = toDate(clock.now());
    const Date now = clock.nowAsDate();
    EXPECT_GE(now.days, before.days);
    EXPECT_LE(now.days, toDate(clock.now()).days);
}

} // namespace
} // namespace basic
