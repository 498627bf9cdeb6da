// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a command bar shows that is not its own: widgets in it, and the window's other parts.
#include "tests/platform/basic/ErrorOf.h"
#include "tests/platform/forms/CommandBarTest.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>

namespace forms {
namespace {

TEST_F(CommandBarTest, AHostedWidgetStretchesAndComesAndGoes) {
    QLabel player(QStringLiteral("player"));
    Tool& place = ab.Bands("Status").Tools("miSProgress");
    place.SetCustom(&player);
    QCoreApplication::processEvents();
    EXPECT_TRUE(player.isVisible());
    EXPECT_GT(player.width(), 300);
    place.SetCustom(nullptr);
    EXPECT_FALSE(player.isVisible());
    place.SetCustom(&player);
    place.SetCustom(&player);
    EXPECT_TRUE(player.isVisible());
}

TEST_F(CommandBarTest, AToolThatHostsAWidgetStaysEnabled) {
    QLabel player;
    Tool& place = ab.Bands("Status").Tools("miSProgress");
    place.SetCustom(&player);
    EXPECT_TRUE(place.Enabled());
    place.SetCustom(nullptr);
}

TEST_F(CommandBarTest, AHostedWidgetThatWentElsewhereIsTakenBack) {
    QLabel player;
    Tool& place = ab.Bands("Status").Tools("miSProgress");
    place.SetCustom(&player);
    player.setParent(nullptr);
    ASSERT_NE(player.window(), &window);
    place.SetCustom(&player);
    QCoreApplication::processEvents();
    EXPECT_EQ(player.window(), &window);
    EXPECT_TRUE(player.isVisible());
}

TEST_F(CommandBarTest, AHostedWidgetOutlivesItsCommandBar) {
    QPointer<QLabel> player = new QLabel;
    QMainWindow other;
    {
        CommandBar bar(other);
        bar.AddBand("Status", "", BandKind::Toolbar).AddTool("miSProgress").SetCustom(player);
    }
    ASSERT_FALSE(player.isNull());
    EXPECT_EQ(player->parentWidget(), &other);
}

TEST_F(CommandBarTest, OnlyAToolbarHostsWidgets) {
    QLabel label;
    EXPECT_EQ(basic::errorOf([&] { ab.Bands("mnuFile").Tools(0).SetCustom(&label); }),
              basic::kInvalidProcedureCall);
}

TEST_F(CommandBarTest, TheDescriptionOfTheToolUnderTheMouseIsShown) {
    ab.ShowDescriptionsIn(ab.Bands("Status").Tools("Tool14"));
    Tool& play = ab.Bands("Status").Tools("miSPlay");
    play.SetDescription("Plays it");
    QCoreApplication::processEvents();
    play.action()->hover();
    play.action()->showStatusText(&window);
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("lblDescription"))->text(),
              QStringLiteral("Plays it"));
}

TEST_F(CommandBarTest, TheClientAreaIsFilledByItsControl) {
    auto* control = new QLabel;
    ab.SetClientAreaControl(control);
    QCoreApplication::processEvents();
    EXPECT_EQ(ab.ClientAreaControl(), control);
    EXPECT_EQ(control->width(), window.width());
    EXPECT_GE(control->y(), window.menuBar()->height());
}

} // namespace
} // namespace forms
