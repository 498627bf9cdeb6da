// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/Icons.h"

#include "tests/resources/AllIcons.h"

#include <QApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace resources {
namespace {

using testing::Named;

const auto& kAll = testing::kAllIcons;

QImage drawn(const QIcon& icon, int side, qreal scale = 1, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(side, side), scale, mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

// How much of the square is covered, by opacity.
double coverage(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum / (image.width() * image.height());
}

bool uses(const QImage& image, QColor colour) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour.rgba())
                return true;
    return false;
}

class Icons : public ::testing::Test {
protected:
    void TearDown() override { QApplication::setPalette(m_before); }

    static void setColours(QColor text, QColor highlightedText, QColor disabledText) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::HighlightedText, highlightedText);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, disabledText);
        QApplication::setPalette(palette);
    }

private:
    QPalette m_before = QApplication::palette();
};

TEST_F(Icons, EachIsDrawnAtEverySizeAndScale) {
    for (const Named& icon : kAll)
        for (const int side : {16, 22, 24, 32, 48, 256})
            for (const int scale : {1, 2}) {
                const QImage image = drawn(icon.make(), side, scale);
                EXPECT_EQ(image.size(), QSize(side, side) * scale) << icon.name;
                EXPECT_GT(coverage(image), 0.08) << icon.name << ' ' << side;
                EXPECT_LT(coverage(image), 0.95) << icon.name << ' ' << side;
            }
}

TEST_F(Icons, APixmapKnowsItsScale) {
    EXPECT_EQ(programIcon().pixmap(QSize(24, 24), 2.0).devicePixelRatio(), 2.0);
}

TEST_F(Icons, TheTwoMarksOfTheListDifferWithoutColour) {
    const double with = coverage(drawn(callIcon(kCallWithMessage), 16));
    const double without = coverage(drawn(callIcon(kCallWithoutMessage), 16));
    EXPECT_GT(with, 2 * without) << "one is solid, the other an outline";
}

TEST_F(Icons, OtherNumbersHaveNoPicture) {
    for (const std::int32_t number : {-1, 0, 2, 7, 9, 30})
        EXPECT_TRUE(callIcon(number).isNull()) << number;
    EXPECT_TRUE(mailboxIcon(0).isNull());
    EXPECT_FALSE(callIcon(8).isNull());
}

TEST_F(Icons, AnIconMadeEarlierFollowsAThemeThatChanges) {
    const QIcon stop = playerIcon(PlayerIcon::Stop);
    setColours(Qt::black, Qt::white, Qt::gray);
    EXPECT_TRUE(uses(drawn(stop, 24), Qt::black));
    setColours(Qt::white, Qt::black, Qt::gray);
    EXPECT_TRUE(uses(drawn(stop, 24), Qt::white));
    EXPECT_FALSE(uses(drawn(stop, 24), Qt::black));
}

TEST_F(Icons, MarksTakeTheColourOfSelectedText) {
    setColours(Qt::black, Qt::yellow, Qt::gray);
    for (const std::int32_t mark : {kCallWithMessage, kCallWithoutMessage})
        EXPECT_TRUE(uses(drawn(callIcon(mark), 32, 1, QIcon::Selected), Qt::yellow)) << mark;
}

TEST_F(Icons, ButtonsTakeTheColourOfDisabledText) {
    setColours(Qt::black, Qt::yellow, Qt::red);
    EXPECT_TRUE(uses(drawn(playerIcon(PlayerIcon::Play), 24, 1, QIcon::Disabled), Qt::red));
}

TEST_F(Icons, TheProgramsMarkHasFewerStrokesWhereItIsSmall) {
    for (const int side : {16, 24, 32})
        EXPECT_EQ(drawn(programIcon(), side), drawn(trayIcon(), side)) << side;
    for (const int side : {48, 64, 256})
        EXPECT_NE(drawn(programIcon(), side), drawn(trayIcon(), side)) << side;
    EXPECT_NE(drawn(programIcon(), 24, 2), drawn(trayIcon(), 24, 2)) << "as many pixels as 48";
}

TEST_F(Icons, PanelsAreOfferedSeveralSizes) {
    EXPECT_GE(trayIcon().availableSizes().size(), 4);
    EXPECT_TRUE(programIcon().availableSizes().contains(QSize(256, 256)));
}

} // namespace
} // namespace resources
