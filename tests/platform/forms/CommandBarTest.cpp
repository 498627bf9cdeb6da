// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/forms/CommandBarTest.h"

#include "tests/platform/basic/ErrorOf.h"

#include <QAction>
#include <QMenu>
#include <QTest>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(CommandBarTest, ToolsAreAddressedByIndexSeparatorsCounting) {
    EXPECT_EQ(ab.Bands(2).Name(), "mnuFile");
    EXPECT_EQ(ab.Bands(2).Tools(1).Name(), "miSep");
    EXPECT_EQ(ab.Bands(2).Tools(2).Name(), "miFExit");
    EXPECT_EQ(&ab.Bands("mnuFile").Tools("miFExit"), &ab.Bands(2).Tools(2));
}

TEST_F(CommandBarTest, UnknownBandsAndToolsAreElementNotFound) {
    EXPECT_EQ(basic::errorOf([&] { ab.Bands(4); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { ab.Bands(-1); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { ab.Bands("mnuNone"); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { ab.Bands(0).Tools(4); }), basic::kElementNotFound);
    EXPECT_EQ(basic::errorOf([&] { ab.Bands(0).Tools("miNone"); }), basic::kElementNotFound);
}

TEST_F(CommandBarTest, AButtonIsOneClickOfItsOwnTool) {
    Tool& play = ab.Bands("Status").Tools("miSPlay");
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_THAT(clicked, ElementsAre(&play));
}

TEST_F(CommandBarTest, FlagsChangeOnlyOneOccurrence) {
    Tool& inToolbar = ab.Bands("Status").Tools("miSPlay");
    Tool& inMenu = ab.Bands("mnuFile").Tools("miSPlay");
    inToolbar.SetEnabled(false);
    inToolbar.SetChecked(true);
    EXPECT_TRUE(inMenu.Enabled());
    EXPECT_FALSE(inMenu.Checked());
    EXPECT_FALSE(button(inToolbar).isEnabled());
    EXPECT_TRUE(button(inToolbar).isChecked());
    inToolbar.SetEnabled(true);
    inToolbar.SetChecked(false);
    EXPECT_TRUE(button(inToolbar).isEnabled());
    EXPECT_FALSE(button(inToolbar).isChecked());
}

TEST_F(CommandBarTest, AClickDoesNotChangeWhatIsShownPressed) {
    Tool& play = ab.Bands("Status").Tools("miSPlay");
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_FALSE(button(play).isChecked());
    play.SetChecked(true);
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_TRUE(play.Checked());
    EXPECT_TRUE(button(play).isChecked());
    EXPECT_EQ(clicked.size(), 2U);
}

TEST_F(CommandBarTest, AHandlerMayChangeThePressedToolItself) {
    Tool& play = ab.Bands("Status").Tools("miSPlay");
    QObject::connect(&ab, &CommandBar::ToolClick, [](Tool& tool) { tool.SetChecked(!tool.Checked()); });
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_TRUE(button(play).isChecked());
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_FALSE(button(play).isChecked());
}

TEST_F(CommandBarTest, ADisabledToolIsNotClicked) {
    Tool& play = ab.Bands("Status").Tools("miSPlay");
    play.SetEnabled(false);
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_THAT(clicked, IsEmpty());
}

TEST_F(CommandBarTest, CaptionsOfPictureButtonsAreNeverSeen) {
    Tool& stop = ab.Bands("Status").Tools("miSStop");
    EXPECT_TRUE(button(stop).text().isEmpty());
    EXPECT_TRUE(button(stop).toolTip().isEmpty());
    stop.SetAccessibleName(QStringLiteral("Stop"));
    EXPECT_EQ(button(stop).text(), QStringLiteral("Stop"));
    EXPECT_EQ(stop.Caption(), "Tool7");
    EXPECT_EQ(button(stop).toolButtonStyle(), Qt::ToolButtonIconOnly);
}

TEST_F(CommandBarTest, ADropDownMayBeAddedBeforeOrAfterWhatOpensIt) {
    Tool& later = ab.Bands("Menu").AddTool("miHelp", "&Help");
    later.SetSubBand("mnuHelp");
    EXPECT_EQ(later.action()->menu(), nullptr);
    Band& help = ab.AddBand("mnuHelp", "Help", BandKind::DropDown);
    EXPECT_EQ(later.action()->menu(), help.menu());
    EXPECT_EQ(ab.Bands("Menu").Tools("miFile").action()->menu(), ab.Bands("mnuFile").menu());
}

TEST_F(CommandBarTest, OnlyMenusCanBeOpenedAsContextMenus) {
    EXPECT_EQ(basic::errorOf([&] { ab.PopupMenu("Status", {}); }), basic::kInvalidProcedureCall);
    EXPECT_EQ(basic::errorOf([&] { ab.PopupMenu("mnuNone", {}); }), basic::kElementNotFound);
}

} // namespace
} // namespace forms
