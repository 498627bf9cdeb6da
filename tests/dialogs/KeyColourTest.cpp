// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/KeyColour.h"

#include "platform/forms/PictureBox.h"
#include "resources/Icons.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace dialogs {
namespace {

class NotedPixels final : public forms::Pixels {
public:
    int ScaleWidth() const override { return 3; }
    int ScaleHeight() const override { return 2; }
    std::optional<QColor> Point(int x, int y) const override {
        probed.emplace_back(x, y);
        return isGreen.contains({x, y}) ? QColor(0, 255, 0) : QColor(0, 254, 0);
    }
    void PSet(int x, int y) override { set.insert({x, y}); }

    std::set<std::pair<int, int>> isGreen;
    std::set<std::pair<int, int>> set;
    mutable std::vector<std::pair<int, int>> probed;
};

TEST(KeyColour, ProbesColumnByColumnUpToOnePixelBeyondEachEdge) {
    NotedPixels pixels;
    replaceKeyColour(pixels);
    std::vector<std::pair<int, int>> all;
    for (int x = 0; x <= 3; ++x)
        for (int y = 0; y <= 2; ++y)
            all.emplace_back(x, y);
    EXPECT_EQ(pixels.probed, all);
    EXPECT_TRUE(pixels.set.empty());
}

TEST(KeyColour, SetsExactlyThePixelsOfPureGreen) {
    NotedPixels pixels;
    pixels.isGreen = {{0, 0}, {1, 2}, {3, 2}};
    replaceKeyColour(pixels);
    EXPECT_EQ(pixels.set, pixels.isGreen);
}

int countOf(const forms::PictureBox& box, QColor colour) {
    int count = 0;
    for (int x = 0; x < box.ScaleWidth(); ++x)
        for (int y = 0; y < box.ScaleHeight(); ++y)
            count += box.Point(x, y) == std::optional(colour) ? 1 : 0;
    return count;
}

TEST(KeyColour, PicturesOfTheDialogTakeTheForegroundOfTheirBox) {
    for (const std::int32_t picture : {resources::kDetailsWithMessage, resources::kDetailsWithoutMessage}) {
        forms::PictureBox box;
        box.resize(32, 32);
        QPalette palette;
        palette.setColor(QPalette::WindowText, QColor(200, 10, 220));
        box.setPalette(palette);
        box.Cls();
        box.PaintPicture(resources::detailsIcon(picture));
        const int keyed = countOf(box, QColor(0, 255, 0));
        EXPECT_GT(keyed, 20) << picture;
        replaceKeyColour(box);
        EXPECT_EQ(countOf(box, QColor(0, 255, 0)), 0) << picture;
        EXPECT_EQ(countOf(box, QColor(200, 10, 220)), keyed) << picture;
    }
}

} // namespace
} // namespace dialogs
