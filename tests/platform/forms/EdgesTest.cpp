// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Edges.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

#include <string>

namespace forms {
namespace {

QPalette palette() {
    QPalette colours;
    colours.setColor(QPalette::Light, QColor(1, 0, 0));
    colours.setColor(QPalette::Midlight, QColor(2, 0, 0));
    colours.setColor(QPalette::Dark, QColor(3, 0, 0));
    colours.setColor(QPalette::Shadow, QColor(4, 0, 0));
    return colours;
}

// Each pixel of a picture of 7 x 5 as the colour it got, '.' for none, after an edge around 1,1 to 6,4.
std::string drawn(std::int32_t edge, std::int32_t flags, int ratio = 1) {
    QImage picture(7 * ratio, 5 * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    DrawEdge(painter, QRect(1, 1, 5, 3), edge, flags, palette());
    painter.end();
    std::string text;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            text += ".HhdD"[picture.pixelColor(x, y).red()];
        text += '\n';
    }
    return text;
}

TEST(Edges, SunkenOuterIsDarkAboveAndLightBelow) {
    EXPECT_EQ(drawn(BDR_SUNKENOUTER, BF_RECT), ".......\n"
                                               ".ddddH.\n"
                                               ".d...H.\n"
                                               ".HHHHH.\n"
                                               ".......\n");
}

TEST(Edges, RaisedInnerIsLightAboveAndDarkBelow) {
    EXPECT_EQ(drawn(BDR_RAISEDINNER, BF_RECT), ".......\n"
                                               ".HHHHd.\n"
                                               ".H...d.\n"
                                               ".ddddd.\n"
                                               ".......\n");
}

TEST(Edges, RaisedOuterAndSunkenInnerHaveTheOtherTwoColours) {
    EXPECT_EQ(drawn(BDR_RAISEDOUTER, BF_RECT), ".......\n"
                                               ".hhhhD.\n"
                                               ".h...D.\n"
                                               ".DDDDD.\n"
                                               ".......\n");
    EXPECT_EQ(drawn(BDR_SUNKENINNER, BF_RECT), ".......\n"
                                               ".DDDDh.\n"
                                               ".D...h.\n"
                                               ".hhhhh.\n"
                                               ".......\n");
}

TEST(Edges, InnerLineLiesInsideOfTheOuterOne) {
    EXPECT_EQ(drawn(BDR_RAISEDOUTER | BDR_SUNKENINNER, BF_RECT), ".......\n"
                                                                 ".hhhhD.\n"
                                                                 ".hhhhD.\n"
                                                                 ".DDDDD.\n"
                                                                 ".......\n");
}

TEST(Edges, OnlyTheSidesThatAreAskedForAreDrawn) {
    EXPECT_EQ(drawn(BDR_SUNKENOUTER, BF_LEFT), ".......\n.d.....\n.d.....\n.d.....\n.......\n");
    EXPECT_EQ(drawn(BDR_SUNKENOUTER, BF_TOP), ".......\n.ddddd.\n.......\n.......\n.......\n");
    EXPECT_EQ(drawn(BDR_SUNKENOUTER, BF_RIGHT), ".......\n.....H.\n.....H.\n.....H.\n.......\n");
    EXPECT_EQ(drawn(BDR_SUNKENOUTER, BF_BOTTOM), ".......\n.......\n.......\n.HHHHH.\n.......\n");
    EXPECT_EQ(drawn(BDR_SUNKENOUTER, 0), ".......\n.......\n.......\n.......\n.......\n");
    EXPECT_EQ(drawn(0, BF_RECT), ".......\n.......\n.......\n.......\n.......\n");
}

TEST(Edges, LineIsTwoDevicePixelsWideAtTwoHundredPercent) {
    const std::string lines = drawn(BDR_SUNKENOUTER, BF_RECT, 2);
    const std::string blank(14, '.');
    EXPECT_EQ(lines, blank + '\n' + blank + '\n' + "..ddddddddHH..\n..ddddddddHH..\n..dd......HH..\n" +
                         "..dd......HH..\n..HHHHHHHHHH..\n..HHHHHHHHHH..\n" + blank + '\n' + blank + '\n');
}

} // namespace
} // namespace forms
