// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mediagraph/Aside.h"

#include <gtest/gtest.h>

namespace mediagraph {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr WaitLimits kLimits{seconds{2}, seconds{5}};
constexpr milliseconds kTurn{100};

// One who looks every tenth of a second.
class PatienceTest : public ::testing::Test {
protected:
    bool isOver(Patience::Clock::duration later = kTurn) { return m_patience.isOver(steps, m_now += later); }
    // How many looks it takes to the end.
    int looks(std::size_t stepsBetween = 0) {
        int count = 1;
        while (!isOver() && count < 1000) {
            steps += stepsBetween;
            ++count;
        }
        return count;
    }

    std::size_t steps = 0;

private:
    Patience::Clock::time_point m_now{};
    Patience m_patience{kLimits, m_now};
};

TEST_F(PatienceTest, IsOverOnceTheWorkMadeNoProgressForItsTime) {
    EXPECT_EQ(looks(), 21);
}

TEST_F(PatienceTest, BeginsAnewWithEachStep) {
    for (int i = 0; i < 15; ++i)
        ASSERT_FALSE(isOver());
    ++steps;
    ASSERT_FALSE(isOver());
    EXPECT_EQ(looks(), 21);
}

TEST_F(PatienceTest, IsOverAfterTheWholeTimeThoughThereIsProgress) {
    EXPECT_EQ(looks(1), 51);
}

TEST_F(PatienceTest, CountsAMachineThatSleptAsHalfASecond) {
    ASSERT_FALSE(isOver(minutes{90}));
    EXPECT_EQ(looks(), 16);
}

} // namespace
} // namespace mediagraph
