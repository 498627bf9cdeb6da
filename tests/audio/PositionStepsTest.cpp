// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/PositionSteps.h"

#include "audio/Fixed.h"

#include <gtest/gtest.h>

#include <limits>

namespace audio {
namespace {

TEST(Fixed, RoundsHalfToEvenAtTheFourthDecimal) {
    EXPECT_EQ(toCurrency(0.33335).tenThousandths, 3334); // nearest double lies above the half
    EXPECT_EQ(toCurrency(0.00025).tenThousandths, 2);
    EXPECT_EQ(toCurrency(0.00035).tenThousandths, 4);
    EXPECT_EQ(toCurrency(-1.5).tenThousandths, -15000);
    EXPECT_EQ(toDouble({12346}), 1.2346);
}

TEST(Fixed, WhatDoesNotFitIsAnOverflow) {
    EXPECT_THROW(toCurrency(1e15), basic::RuntimeError);
    EXPECT_THROW(toCurrency(std::numeric_limits<double>::quiet_NaN()), basic::RuntimeError);
}

// A file that is as it was set.
class StillPosition final : public mediagraph::IMediaPosition {
public:
    StillPosition(double duration, double position) : m_duration(duration), m_position(position) {}
    double Duration() override { return m_duration; }
    double CurrentPosition() override { return m_position; }
    void SetCurrentPosition(double seconds) override { m_position = seconds; }

private:
    double m_duration;
    double m_position;
};

double after(void (*step)(mediagraph::IMediaPosition&), double duration, double position) {
    StillPosition file(duration, position);
    step(file);
    return file.CurrentPosition();
}

TEST(PositionSteps, ForwardStopsBeforeTheEndAndASecond) {
    EXPECT_DOUBLE_EQ(after(stepForward, 100, 50), 60);
    EXPECT_DOUBLE_EQ(after(stepForward, 100, 90.5), 100.5);
    EXPECT_DOUBLE_EQ(after(stepForward, 100, 91), 91);
    EXPECT_DOUBLE_EQ(after(stepForward, 0.5, 0.5), 0.55);
    EXPECT_DOUBLE_EQ(after(stepForward, 100, 0), 0);
}

TEST(PositionSteps, BackwardStopsAtTheBeginning) {
    EXPECT_DOUBLE_EQ(after(stepBackward, 100, 50), 40);
    EXPECT_DOUBLE_EQ(after(stepBackward, 100, 11), 0);
    EXPECT_DOUBLE_EQ(after(stepBackward, 100, 11.5), 1.5);
    EXPECT_DOUBLE_EQ(after(stepBackward, 0.5, 0.4), 0);
}

} // namespace
} // namespace audio
