// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/BackOff.h"

#include <gtest/gtest.h>

namespace share::smb {
namespace {

using namespace std::chrono_literals;

class BackOffTest : public ::testing::Test {
protected:
    // How long the pause is that begins now.
    std::chrono::milliseconds pauseAfterFailure() {
        m_backOff.failed();
        const auto begin = m_time;
        while (m_backOff.isPausing())
            m_time += 100ms;
        return m_time - begin;
    }

    std::chrono::milliseconds m_time{1'000'000};
    double m_spread = 0;
    BackOff m_backOff{[this] { return m_time; }, [this] { return m_spread; }};
};

TEST_F(BackOffTest, DoesNotPauseBeforeAFailure) {
    EXPECT_FALSE(m_backOff.isPausing());
}

TEST_F(BackOffTest, GrowsFromASecondToAMinute) {
    const std::vector<std::chrono::milliseconds> expected{1s, 2s, 4s, 8s, 16s, 32s, 60s, 60s};
    for (const auto pause : expected)
        EXPECT_EQ(pauseAfterFailure(), pause);
}

TEST_F(BackOffTest, BeginsAnewAfterAnAnswer) {
    pauseAfterFailure();
    pauseAfterFailure();
    m_backOff.failed();
    m_backOff.succeeded();
    EXPECT_FALSE(m_backOff.isPausing());
    EXPECT_EQ(pauseAfterFailure(), 1s);
}

TEST_F(BackOffTest, SpreadsTheClientsOverAFifthOfThePause) {
    m_spread = 1;
    EXPECT_EQ(pauseAfterFailure(), 800ms);
    m_spread = 0.5;
    EXPECT_EQ(pauseAfterFailure(), 1'800ms);
}

} // namespace
} // namespace share::smb
