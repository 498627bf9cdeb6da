// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/PictureBox.h"

#include <QPixmap>

#include <gtest/gtest.h>

namespace forms {
namespace {

const QColor kInk(200, 10, 220);

class PictureBoxTest : public testing::Test {
protected:
    PictureBoxTest() {
        box.resize(4, 3);
        QPalette palette;
        palette.setColor(QPalette::WindowText, kInk);
        box.setPalette(palette);
        box.Cls();
    }
    static QIcon filled(const QColor& colour) {
        QPixmap pixmap(64, 64);
        pixmap.fill(colour);
        return QIcon(pixmap);
    }

    PictureBox box;
};

TEST_F(PictureBoxTest, HasAPixelForEachOfTheScreens) {
    EXPECT_EQ(box.ScaleWidth(), qRound(4 * box.devicePixelRatioF()));
    EXPECT_EQ(box.ScaleHeight(), qRound(3 * box.devicePixelRatioF()));
}

TEST_F(PictureBoxTest, NothingIsDrawnAtFirstAndAfterClearing) {
    EXPECT_FALSE(box.Point(0, 0));
    box.PaintPicture(filled(Qt::red));
    EXPECT_EQ(box.Point(0, 0), std::optional(QColor(Qt::red)));
    box.Cls();
    EXPECT_FALSE(box.Point(0, 0));
}

TEST_F(PictureBoxTest, PixelTakesTheForegroundColourAndKeepsItsCoverage) {
    box.PaintPicture(filled(QColor(0, 255, 0, 100)));
    EXPECT_EQ(box.Point(1, 1), std::optional(QColor(0, 255, 0)));
    box.PSet(1, 1);
    EXPECT_EQ(box.Point(1, 1), std::optional(kInk));
    EXPECT_EQ(box.Point(2, 1), std::optional(QColor(0, 255, 0)));
    QImage shown(box.size(), QImage::Format_ARGB32);
    shown.fill(Qt::white);
    box.render(&shown, {}, {}, {});
    EXPECT_NE(shown.pixelColor(1, 1), kInk); // white shines through
}

TEST_F(PictureBoxTest, PixelsOutsideAreNoneAndCannotBeSet) {
    box.PaintPicture(filled(Qt::red));
    for (const auto& [x, y] : {std::pair(-1, 0), std::pair(0, -1), std::pair(box.ScaleWidth(), 0),
                               std::pair(0, box.ScaleHeight())}) {
        box.PSet(x, y);
        EXPECT_FALSE(box.Point(x, y));
    }
}

TEST_F(PictureBoxTest, TellsThatANewThemeOutdatesWhatIsDrawn) {
    int outdated = 0;
    QObject::connect(&box, &PictureBox::Outdated, [&] { ++outdated; });
    box.setPalette(QPalette(Qt::yellow));
    EXPECT_GE(outdated, 1);
}

} // namespace
} // namespace forms
