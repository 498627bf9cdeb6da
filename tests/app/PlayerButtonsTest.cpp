// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the player's buttons show.
#include "tests/app/MainPlayerTest.h"

#include <QTest>

namespace app {
namespace {

TEST_F(MainPlayerTest, ButtonsFollowTheSelectionWhileNothingPlays) {
    loadOne();
    EXPECT_EQ(buttons(), "-----");
    select("KC2");
    window->UpdateButtonStates();
    EXPECT_EQ(buttons(), "-----");
    select("KC1");
    Q_EMIT list().ItemClick(2);
    EXPECT_EQ(buttons(), "+----");
}

TEST_F(MainPlayerTest, ButtonsFollowThePlayer) {
    loadOne();
    play();
    EXPECT_EQ(buttons(), "x++++");
    window->ab_ToolClick("miSPause");
    EXPECT_EQ(buttons(), "++x++");
    window->ab_ToolClick("miSPlay");
    EXPECT_EQ(buttons(), "x++++");
    window->ab_ToolClick("miSStop");
    EXPECT_EQ(buttons(), "+----");
}

TEST_F(MainPlayerTest, ButtonsGoBackAtTheEndOfTheMessage) {
    loadOne();
    play();
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::Complete;
    EXPECT_TRUE(QTest::qWaitFor([this] { return buttons() == "+----"; }));
}

TEST_F(MainPlayerTest, PauseWithoutASelectedMessageLeavesPlayEnabledWhilePlaybackCounts) {
    loadOne();
    play();
    select("KC2");
    window->ab_ToolClick("miSPause");
    EXPECT_EQ(buttons(), "++x++");
    window->ab_ToolClick("miSStop");
    EXPECT_EQ(buttons(), "-----");
}

TEST_F(MainPlayerTest, OnlyTheStatusBandsToolsHaveTheseFlags) {
    loadOne();
    play();
    EXPECT_TRUE(window->ab().Bands("mnuTools").Tools("miSPlay").Enabled());
    EXPECT_FALSE(window->ab().Bands("mnuTools").Tools("miSPlay").Checked());
    window->ab_ToolClick("miSStop");
    EXPECT_TRUE(window->ab().Bands("mnuPopup").Tools("miSPlay").Enabled());
}

} // namespace
} // namespace app
