// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/WidgetSurface.h"

#include "platform/forms/Edges.h"
#include "platform/forms/Placement.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace forms {
namespace {

class WidgetSurfaceTest : public testing::Test {
protected:
    WidgetSurfaceTest() {
        control.resize(20, 10);
        surface.Cls();
    }
    // Whether the logical pixel was drawn on, in all of its device pixels.
    bool isDrawn(int x, int y) const {
        const int ratio = qRound(control.devicePixelRatioF());
        int opaque = 0;
        for (int i = 0; i < ratio * ratio; ++i)
            if (surface.picture().pixelColor(x * ratio + i % ratio, y * ratio + i / ratio).alpha() == 255)
                ++opaque;
        EXPECT_TRUE(opaque == 0 || opaque == ratio * ratio) << x << "," << y;
        return opaque > 0;
    }

    QWidget control;
    WidgetSurface surface{control};
};

TEST_F(WidgetSurfaceTest, HasTheControlsSizeInTwips) {
    EXPECT_EQ(surface.ScaleWidth().value, 300);
    EXPECT_EQ(surface.ScaleHeight().value, 150);
}

TEST_F(WidgetSurfaceTest, HasThePixelsOfTheScreen) {
    EXPECT_EQ(surface.picture().size(), control.size() * control.devicePixelRatioF());
}

TEST_F(WidgetSurfaceTest, KeepsWhatWasDrawnUntilItIsCleared) {
    surface.DrawEdge(QRect(2, 2, 5, 5), BDR_SUNKENOUTER, BF_RECT);
    EXPECT_TRUE(isDrawn(2, 2));
    EXPECT_TRUE(isDrawn(6, 6));
    EXPECT_FALSE(isDrawn(3, 3));
    surface.Cls();
    EXPECT_FALSE(isDrawn(2, 2));
}

TEST_F(WidgetSurfaceTest, NothingIsDrawnOrClearedOutsideOfTheRegion) {
    surface.SelectClipRgn(QRect(0, 0, 4, 10));
    surface.DrawEdge(QRect(0, 0, 20, 10), BDR_SUNKENOUTER, BF_RECT);
    EXPECT_TRUE(isDrawn(3, 0));
    EXPECT_FALSE(isDrawn(4, 0));
    surface.SelectClipRgn(QRect(0, 0, 2, 10));
    surface.Cls();
    EXPECT_FALSE(isDrawn(1, 0));
    EXPECT_TRUE(isDrawn(3, 0));
    surface.SelectClipRgn(std::nullopt);
    surface.DrawEdge(QRect(0, 0, 20, 10), BDR_SUNKENOUTER, BF_RECT);
    EXPECT_TRUE(isDrawn(19, 9));
}

TEST_F(WidgetSurfaceTest, EmptyRegionLetsNothingThrough) {
    surface.SelectClipRgn(QRect(2, 2, -4, -4));
    surface.DrawEdge(QRect(0, 0, 20, 10), BDR_SUNKENOUTER, BF_RECT);
    for (int x = 0; x < 20; ++x)
        EXPECT_FALSE(isDrawn(x, 0));
}

TEST_F(WidgetSurfaceTest, TakesTheControlsNewSizeWhenCleared) {
    control.resize(40, 30);
    surface.Cls();
    surface.DrawEdge(QRect(0, 0, 40, 30), BDR_SUNKENOUTER, BF_RECT);
    EXPECT_TRUE(isDrawn(39, 29));
}

TEST_F(WidgetSurfaceTest, DrawsInTheControlsColoursOfTheMoment) {
    QPalette dark;
    dark.setColor(QPalette::Dark, QColor(10, 20, 30));
    control.setPalette(dark);
    surface.DrawEdge(QRect(0, 0, 20, 10), BDR_SUNKENOUTER, BF_RECT);
    EXPECT_EQ(surface.picture().pixelColor(0, 0), QColor(10, 20, 30));
}

TEST_F(WidgetSurfaceTest, ControlWithoutASizeIsDrawnOnWithoutHarm) {
    control.resize(0, 0);
    surface.Cls();
    surface.DrawEdge(QRect(-1, -1, 2, 2), BDR_SUNKENOUTER, BF_RECT);
    EXPECT_TRUE(surface.picture().isNull());
}

TEST(Placement, KeepsTwipsAndMovesTheWidgetInWholePixels) {
    QWidget widget;
    Placement place(widget);
    place.Move({29}, {15}, {44}, {195});
    EXPECT_EQ(widget.geometry(), QRect(1, 1, 2, 13));
    place.SetLeft({-29});
    place.SetTop({0});
    place.SetWidth({150});
    place.SetHeight({30});
    EXPECT_EQ(widget.geometry(), QRect(-1, 0, 10, 2));
    EXPECT_EQ(place.Left().value, -29);
    EXPECT_EQ(place.Width().value, 150);
}

} // namespace
} // namespace forms
