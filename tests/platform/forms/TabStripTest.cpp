// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/TabStrip.h"

#include "tests/platform/basic/ErrorOf.h"

#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

namespace forms {
namespace {

class TabStripTest : public testing::Test {
protected:
    TabStripTest() {
        strip.resize(400, 300);
        strip.show();
        QObject::connect(&strip, &TabStrip::Click, [this] { ++clicks; });
    }
    void addTwo() {
        strip.Tabs().Add("KEY7", "Sales", 1);
        strip.Tabs().Add("KEY12", "Support", 1);
    }
    QTabBar& bar() { return *strip.findChild<QTabBar*>(); }

    TabStrip strip;
    int clicks = 0;
};

TEST_F(TabStripTest, TheFirstTabIsSelectedWithoutAClick) {
    EXPECT_FALSE(strip.SelectedItem().has_value());
    addTwo();
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY7");
    EXPECT_EQ(clicks, 0);
}

TEST_F(TabStripTest, TabsAreFoundByIndexAndKey) {
    addTwo();
    EXPECT_EQ(strip.Tabs().Count(), 2);
    EXPECT_EQ(strip.Tabs().Item(2).Key, "KEY12");
    EXPECT_EQ(strip.Tabs().Item("KEY12").Caption, "Support");
    EXPECT_EQ(strip.Tabs().Item("KEY12").Index, 2);
    EXPECT_EQ(strip.Tabs().Item("KEY12").Image, 1);
}

TEST_F(TabStripTest, UnknownTabsAreElementNotFound) {
    addTwo();
    EXPECT_EQ(basic::errorOf([&] { strip.Tabs().Item(0); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { strip.Tabs().Item(3); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { strip.Tabs().Item("KEY1"); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { strip.SetSelectedItem(3); }), basic::kElementNotFound);
}

TEST_F(TabStripTest, ADuplicateKeyIsNotUnique) {
    addTwo();
    EXPECT_EQ(basic::errorOf([&] { strip.Tabs().Add("KEY7", "Again"); }), basic::kKeyNotUnique);
    EXPECT_EQ(strip.Tabs().Count(), 2);
    EXPECT_EQ(bar().count(), 2);
}

TEST_F(TabStripTest, AMouseClickOnAnotherTabIsAClick) {
    addTwo();
    QTest::mouseClick(&bar(), Qt::LeftButton, {}, bar().tabRect(1).center());
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY12");
    EXPECT_EQ(clicks, 1);
}

TEST_F(TabStripTest, AnArrowKeyIsAClick) {
    addTwo();
    QTest::keyClick(&bar(), Qt::Key_Right);
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY12");
    EXPECT_EQ(clicks, 1);
}

TEST_F(TabStripTest, SelectingByTheProgramIsNoClick) {
    addTwo();
    strip.SetSelectedItem(2);
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY12");
    EXPECT_EQ(clicks, 0);
}

TEST_F(TabStripTest, ClearingIsNoClickAndFreesTheKeys) {
    addTwo();
    strip.SetSelectedItem(2);
    strip.Tabs().Clear();
    EXPECT_EQ(strip.Tabs().Count(), 0);
    EXPECT_FALSE(strip.SelectedItem().has_value());
    addTwo();
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY7");
    EXPECT_EQ(clicks, 0);
}

TEST_F(TabStripTest, TheProgramCanTakeTheSelectionAwayWithoutAClick) {
    addTwo();
    const QImage selected = bar().grab().toImage();
    strip.SetSelectedItem(0);
    EXPECT_FALSE(strip.SelectedItem().has_value());
    EXPECT_NE(bar().grab().toImage(), selected);
    EXPECT_EQ(clicks, 0);
    strip.SetSelectedItem(1);
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY7");
    EXPECT_EQ(bar().grab().toImage(), selected);
    EXPECT_EQ(clicks, 0);
}

TEST_F(TabStripTest, WithoutASelectionAnyTabIsOneClickAway) {
    addTwo();
    for (const int tab : {0, 1}) {
        strip.SetSelectedItem(0);
        clicks = 0;
        QTest::mouseClick(&bar(), Qt::LeftButton, {}, bar().tabRect(tab).center());
        ASSERT_TRUE(strip.SelectedItem().has_value()) << tab;
        EXPECT_EQ(strip.SelectedItem()->Index, tab + 1);
        EXPECT_EQ(clicks, 1) << tab;
    }
}

TEST_F(TabStripTest, ATabAddedLaterIsNotSelectedButTheFirstAfterClearingIs) {
    addTwo();
    strip.SetSelectedItem(0);
    strip.Tabs().Add("KEY13", "Third");
    EXPECT_FALSE(strip.SelectedItem().has_value());
    strip.Tabs().Clear();
    strip.SetSelectedItem(0);
    addTwo();
    ASSERT_TRUE(strip.SelectedItem().has_value());
    EXPECT_EQ(strip.SelectedItem()->Key, "KEY7");
    EXPECT_EQ(clicks, 0);
}

TEST_F(TabStripTest, AnAmpersandInACaptionIsShown) {
    strip.Tabs().Add("KEY1", "Sales & Support");
    EXPECT_EQ(strip.Tabs().Item(1).Caption, "Sales & Support");
    EXPECT_EQ(bar().tabText(0), QStringLiteral("Sales && Support"));
}

TEST_F(TabStripTest, WithoutTabsTheClientAreaIsEverything) {
    EXPECT_EQ(strip.ClientTop().value, 0);
    EXPECT_EQ(strip.ClientHeight().value, 300 * 15);
    EXPECT_FALSE(bar().isVisible());
    addTwo();
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(strip.ClientTop().value, bar().height() * 15);
    EXPECT_EQ(strip.ClientHeight().value, (300 - bar().height()) * 15);
    EXPECT_EQ(strip.ClientLeft().value, 0);
    EXPECT_EQ(strip.ClientWidth().value, 400 * 15);
    strip.Tabs().Clear();
    EXPECT_EQ(strip.ClientTop().value, 0);
}

TEST_F(TabStripTest, ATabKnowsItsPlaceInTwips) {
    addTwo();
    EXPECT_EQ(strip.Tabs().Item(2).Left.value % 15, 0);
    EXPECT_EQ(strip.Tabs().Item(2).Left.value, bar().tabRect(1).left() * 15);
    EXPECT_GT(strip.Tabs().Item(2).Left, strip.Tabs().Item(1).Left);
}

TEST_F(TabStripTest, ABiggerFontLeavesASmallerClientArea) {
    addTwo();
    const auto before = strip.ClientHeight();
    int resized = 0;
    QObject::connect(&strip, &TabStrip::resized, [&] { ++resized; });
    QFont big = strip.font();
    big.setPointSize(30);
    strip.setFont(big);
    QCoreApplication::processEvents();
    EXPECT_LT(strip.ClientHeight(), before);
    EXPECT_GE(resized, 1);
}

} // namespace
} // namespace forms
