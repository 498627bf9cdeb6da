// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/FrameDrawing.h"

#include "platform/forms/Edges.h"
#include "tests/audio/RecordedSurface.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QWidget>

#include <gmock/gmock.h>

#include <limits>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrameDrawingTest : public testing::Test {
protected:
    // The clip rectangle for an edge and its sides on a surface of 100 x 40 pixels.
    std::string clipFor(std::int32_t edge, std::int32_t flags) {
        frame.DrawLabelEdge(place, other, edge, flags);
        frame.EvaluateSize2();
        return own.log.back();
    }

    errors::RecordingErrorHandler errorHandler;
    QWidget control;
    forms::Placement place{control};
    RecordedSurface own{1500, 600};
    RecordedSurface other{1500, 600};
    FrameDrawing frame{errorHandler, "module", own};
};

TEST_F(FrameDrawingTest, EdgeLiesOnePixelOutsideOfTheControl) {
    place.Move({60}, {75}, {300}, {150});
    frame.DrawLabelEdge(place, other, 2, 15);
    EXPECT_THAT(other.log, ElementsAre("DrawEdge 3,4-25,16 edge 2 flags 15"));
    EXPECT_THAT(own.log, IsEmpty());
}

// 59 twips are 3 whole pixels; the far corner is converted as a whole, not as position and size.
TEST_F(FrameDrawingTest, TwipsAreConvertedByIntegerDivision) {
    place.Move({59}, {14}, {16}, {31});
    frame.DrawLabelEdge(place, other, 4, 15);
    EXPECT_THAT(other.log, ElementsAre("DrawEdge 2,-1-6,4 edge 4 flags 15"));
    place.Move({-29}, {-31}, {15}, {15});
    frame.DrawLabelEdge(place, other, 4, 15);
    EXPECT_EQ(other.log.back(), "DrawEdge -2,-3-1,0 edge 4 flags 15");
}

TEST_F(FrameDrawingTest, EdgeOfZeroClipsNothing) {
    EXPECT_EQ(clipFor(0, 15), "clip 0,0-100,40");
}

TEST_F(FrameDrawingTest, NoEdgeYetClipsNothing) {
    frame.EvaluateSize2();
    EXPECT_THAT(own.log, ElementsAre("clip 0,0-100,40"));
}

TEST_F(FrameDrawingTest, OuterEdgesAreOnePixelWideAndInnerOnesTwo) {
    EXPECT_EQ(clipFor(1, 15), "clip 1,1-99,39");
    EXPECT_EQ(clipFor(2, 15), "clip 1,1-99,39");
    EXPECT_EQ(clipFor(3, 15), "clip 1,1-99,39");
    EXPECT_EQ(clipFor(4, 15), "clip 2,2-98,38");
    EXPECT_EQ(clipFor(10, 15), "clip 2,2-98,38");
    EXPECT_EQ(clipFor(-1, 15), "clip 0,0-100,40");
}

TEST_F(FrameDrawingTest, OnlyTheSidesThatArePresentShrinkTheRegion) {
    EXPECT_EQ(clipFor(4, forms::BF_LEFT), "clip 2,0-100,40");
    EXPECT_EQ(clipFor(4, forms::BF_TOP), "clip 0,2-100,40");
    EXPECT_EQ(clipFor(4, forms::BF_RIGHT), "clip 0,0-98,40");
    EXPECT_EQ(clipFor(4, forms::BF_BOTTOM), "clip 0,0-100,38");
    EXPECT_EQ(clipFor(4, forms::BF_LEFT | forms::BF_BOTTOM), "clip 2,0-100,38");
    EXPECT_EQ(clipFor(4, 0), "clip 0,0-100,40");
}

TEST_F(FrameDrawingTest, SurfaceIsCountedInWholePixels) {
    own.width = {1514};
    own.height = {29};
    EXPECT_EQ(clipFor(0, 0), "clip 0,0-100,1");
}

TEST_F(FrameDrawingTest, AGivenControlsSurfaceIsClippedToItsOwnSize) {
    other.width = {150};
    other.height = {150};
    frame.DrawLabelEdge(place, other, 2, 15);
    frame.EvaluateSize(other);
    EXPECT_EQ(other.log.back(), "clip 1,1-9,9");
    EXPECT_THAT(own.log, IsEmpty());
    EXPECT_EQ(frame.region(), QRect(1, 1, 8, 8));
}

TEST_F(FrameDrawingTest, ClipIsLiftedOnceAndOnlyWhenItIsThere) {
    frame.removeClip();
    EXPECT_THAT(own.log, IsEmpty());
    frame.EvaluateSize2();
    frame.removeClip();
    frame.removeClip();
    EXPECT_THAT(own.log, ElementsAre("clip 0,0-100,40", "no clip"));
    EXPECT_FALSE(frame.region().has_value());
}

TEST_F(FrameDrawingTest, FailuresAreReportedUnderTheControlsModule) {
    place.Move({std::numeric_limits<std::int32_t>::max()}, {0}, {15}, {15});
    frame.DrawLabelEdge(place, other, 2, 15);
    own.fails = "clip";
    other.fails = "ScaleWidth";
    frame.EvaluateSize(other);
    frame.EvaluateSize2();
    ASSERT_EQ(errorHandler.reports.size(), 3U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "DrawLabelEdge");
    EXPECT_EQ(errorHandler.reports[0].number, basic::kOverflow);
    EXPECT_EQ(errorHandler.reports[1].procedure, "EvaluateSize");
    EXPECT_EQ(errorHandler.reports[2].procedure, "EvaluateSize2");
    for (const auto& report : errorHandler.reports)
        EXPECT_EQ(report.module, "module");
}

} // namespace
} // namespace audio
