// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// All pictures on one sheet, as a light and as a dark theme show them, to be looked at; what can be measured
// of it is: each stands out from what is behind it.
#include "tests/Contrast.h"
#include "tests/resources/AllIcons.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace resources {
namespace {

using colour::contrast;

struct Theme {
    QColor background, text, selection, selectedText;
};

const Theme kLight{"#ffffff", "#1e1e1e", "#308cc6", "#ffffff"};
const Theme kDark{"#1b1e20", "#fcfcfc", "#2a6a94", "#ffffff"};

constexpr std::array kSides{16, 24, 32, 48, 64, 128, 256};
constexpr std::array kModes{QIcon::Normal, QIcon::Selected, QIcon::Disabled};

class IconSheetTest : public ::testing::Test {
protected:
    void TearDown() override { QApplication::setPalette(m_before); }

    static void show(const Theme& theme) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, theme.text);
        palette.setColor(QPalette::HighlightedText, theme.selectedText);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
        QApplication::setPalette(palette);
    }
    static QColor behind(const Theme& theme, QIcon::Mode mode) {
        return mode == QIcon::Selected ? theme.selection : theme.background;
    }
    static QImage drawn(const QIcon& icon, int side, const QColor& background, QIcon::Mode mode) {
        QImage cell(side, side, QImage::Format_RGB32);
        cell.fill(background);
        QPainter painter(&cell);
        icon.paint(&painter, cell.rect(), Qt::AlignCenter, mode);
        return cell;
    }
    // The share of the cell that differs from what is behind it at least as figures must from their ground.
    static double standingOut(const QImage& cell, const QColor& background) {
        int count = 0;
        for (int y = 0; y < cell.height(); ++y)
            for (int x = 0; x < cell.width(); ++x)
                count += contrast(cell.pixelColor(x, y), background) >= 3 ? 1 : 0;
        return double(count) / (cell.width() * cell.height());
    }
    static void paintTheme(QPainter& painter, const Theme& theme, int top) {
        int left = 0;
        for (const testing::Named& icon : testing::kAllIcons) {
            paintColumn(painter, theme, icon.make(), {left, top});
            left += 264;
        }
    }
    static void paintColumn(QPainter& painter, const Theme& theme, const QIcon& icon, QPoint at) {
        for (const int side : kSides) {
            int left = at.x() + 4;
            for (const QIcon::Mode mode : kModes) {
                if (side <= 64 || mode == QIcon::Normal)
                    painter.drawImage(left, at.y() + 4, drawn(icon, side, behind(theme, mode), mode));
                left += side + 8;
            }
            at.ry() += side + 8;
        }
    }

private:
    QPalette m_before = QApplication::palette();
};

TEST_F(IconSheetTest, EachPictureStandsOutInLightAndDarkThemes) {
    for (const Theme& theme : {kLight, kDark}) {
        show(theme);
        for (const testing::Named& icon : testing::kAllIcons)
            for (const int side : kSides) {
                const QImage cell = drawn(icon.make(), side, theme.background, QIcon::Normal);
                EXPECT_GT(standingOut(cell, theme.background), 0.06) << icon.name << ' ' << side;
            }
    }
}

TEST_F(IconSheetTest, MarksOfTheListStandOutInASelectedRow) {
    for (const Theme& theme : {kLight, kDark}) {
        show(theme);
        for (const std::int32_t mark : {kCallWithMessage, kCallWithoutMessage})
            for (const int side : kSides) {
                const QImage cell = drawn(callIcon(mark), side, theme.selection, QIcon::Selected);
                EXPECT_GT(standingOut(cell, theme.selection), 0.06) << mark << ' ' << side;
            }
    }
}

TEST_F(IconSheetTest, DrawsTheSheet) {
    constexpr int kHeight = 16 + 24 + 32 + 48 + 64 + 128 + 256 + 8 * 8;
    QImage sheet(264 * int(testing::kAllIcons.size()), 2 * kHeight, QImage::Format_RGB32);
    QPainter painter(&sheet);
    int top = 0;
    for (const Theme& theme : {kLight, kDark}) {
        show(theme);
        painter.fillRect(0, top, sheet.width(), kHeight, theme.background);
        paintTheme(painter, theme, top);
        top += kHeight;
    }
    painter.end();
    ASSERT_TRUE(QDir().mkpath(QStringLiteral(QM_ARTEFACTS)));
    EXPECT_TRUE(sheet.save(QStringLiteral(QM_ARTEFACTS "/icons.png")));
}

} // namespace
} // namespace resources
