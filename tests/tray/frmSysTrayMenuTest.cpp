// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tray/TrayIconWorld.h"

namespace tray {
namespace {

TEST_F(frmSysTrayTest, UsesElementZeroForTheFirstItemAndAddsTheOthersBehind) {
    frmSysTray& tray = load();
    EXPECT_EQ(m_area.menu()->actions().size(), 1);
    EXPECT_FALSE(item(0).isVisible());
    EXPECT_EQ(tray.AddMenuItem(u"a"_qs, u"ka"_qs, false), 0);
    EXPECT_EQ(tray.AddMenuItem(u"b"_qs, u"kb"_qs, true), 1);
    EXPECT_EQ(tray.AddMenuItem(u"c"_qs, u"kc"_qs, false), 2);
    EXPECT_TRUE(item(0).isVisible());
    EXPECT_EQ(tray.DefaultMenuIndex(), 1);
}

TEST_F(frmSysTrayTest, ShowsADashAsASeparator) {
    addMainWindowsMenu(load());
    EXPECT_TRUE(item(2).isSeparator());
    EXPECT_EQ(item(2).text(), QString());
    EXPECT_FALSE(item(3).isSeparator());
}

TEST_F(frmSysTrayTest, AClickOnAnItemRaisesItsIndexAndKey) {
    addMainWindowsMenu(load());
    item(1).trigger();
    item(4).trigger();
    EXPECT_EQ(m_events, (QStringList{u"Menu 1 config"_qs, u"Menu 4 close"_qs}));
}

TEST_F(frmSysTrayTest, RemovingElementZeroEmptiesItsCaptionAndKeepsItsKey) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.RemoveMenuItem(0);
    EXPECT_EQ(m_area.menu()->actions().size(), 5);
    EXPECT_EQ(item(0).text(), QString());
    EXPECT_EQ(key(0), u"open"_qs);
}

TEST_F(frmSysTrayTest, RemovingItemTwoOfFiveMovesTheLaterOnesDown) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.EnableMenuItem(3, false);
    tray.RemoveMenuItem(2);
    ASSERT_EQ(m_area.menu()->actions().size(), 4);
    EXPECT_EQ(item(2).text(), u"About"_qs);
    EXPECT_FALSE(item(2).isSeparator());
    EXPECT_EQ(key(2), u"about"_qs);
    EXPECT_EQ(item(3).text(), u"Close"_qs);
    EXPECT_EQ(key(3), u"close"_qs);
    EXPECT_FALSE(item(3).isEnabled()) << "caption and key move, the enabled state stays at its place";
    item(2).trigger();
    EXPECT_EQ(m_events, QStringList{u"Menu 2 about"_qs});
}

TEST_F(frmSysTrayTest, MovesASeparatorDownAsOne) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.RemoveMenuItem(1);
    EXPECT_TRUE(item(1).isSeparator());
    EXPECT_EQ(item(2).text(), u"About"_qs);
}

TEST_F(frmSysTrayTest, IgnoresInvalidIndexes) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    for (const std::int16_t index :
         {std::int16_t{-1}, std::int16_t{5}, std::int16_t{32767}, std::int16_t{-32768}}) {
        tray.RemoveMenuItem(index);
        tray.EnableMenuItem(index, false);
    }
    EXPECT_EQ(m_area.menu()->actions().size(), 5);
    for (const QAction* action : m_area.menu()->actions())
        EXPECT_TRUE(action->isEnabled());
}

TEST_F(frmSysTrayTest, EnablesAndDisablesItems) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.EnableMenuItem(1, false);
    EXPECT_FALSE(item(1).isEnabled());
    tray.EnableMenuItem(1, true);
    EXPECT_TRUE(item(1).isEnabled());
}

TEST_F(frmSysTrayTest, ADefaultIndexBeyondTheUpperBoundReadsBackZero) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.setDefaultMenuIndex(4);
    EXPECT_EQ(tray.DefaultMenuIndex(), 4);
    tray.setDefaultMenuIndex(5);
    EXPECT_EQ(tray.DefaultMenuIndex(), 0);
    tray.setDefaultMenuIndex(4);
    tray.setDefaultMenuIndex(-1);
    EXPECT_EQ(tray.DefaultMenuIndex(), 0);
}

TEST_F(frmSysTrayTest, ShowsTheMenuOfItsWindowWithTheDefaultItemMarked) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.setDefaultMenuIndex(3);
    tray.ShowMenu();
    EXPECT_EQ(m_area.tracked(), std::vector{window()});
    EXPECT_EQ(m_area.menu()->defaultAction(), &item(3));
    tray.RemoveMenuItem(4);
    tray.RemoveMenuItem(3);
    tray.ShowMenu();
    EXPECT_EQ(m_area.menu()->defaultAction(), nullptr) << "its item is gone";
}

} // namespace
} // namespace tray
