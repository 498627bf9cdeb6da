// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/CommandBar.h"

#include "tests/platform/forms/RaisedError.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusTipEvent>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include <gmock/gmock.h>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CommandBarTest : public testing::Test {
protected:
    CommandBarTest() {
        Band& status = ab.AddBand("Status", "Status", BandKind::Toolbar);
        status.AddTool("miSStop", "Tool7").SetPicture(picture());
        status.AddTool("miSPlay", "Play Message").SetPicture(picture());
        status.AddTool("miSProgress", "Tool13");
        status.AddTool("Tool14", "Tool14");
        ab.AddBand("Menu", "Menu", BandKind::MenuBar).AddTool("miFile", "&File").SetSubBand("mnuFile");
        Band& file = ab.AddBand("mnuFile", "File", BandKind::DropDown);
        file.AddTool("miSPlay", "Play &Message");
        file.AddSeparator();
        file.AddTool("miFExit", "&Exit");
        ab.AddBand("mnuPopup", "PopUp", BandKind::ContextMenu).AddTool("miSPlay", "Play");
        window.resize(700, 300);
        window.show();
        QObject::connect(&ab, &CommandBar::ToolClick, [this](Tool& tool) { clicked.push_back(&tool); });
    }
    static QIcon picture() {
        QPixmap pixels(16, 16);
        pixels.fill(Qt::blue);
        return pixels;
    }
    QToolButton& button(Tool& tool) {
        return *qobject_cast<QToolButton*>(ab.Bands("Status").toolBar()->widgetForAction(tool.action()));
    }

    QMainWindow window;
    CommandBar ab{window};
    std::vector<Tool*> clicked;
};

TEST_F(CommandBarTest, ToolsAreAddressedByIndexSeparatorsCounting) {
    EXPECT_EQ(ab.Bands(2).Name(), "mnuFile");
    EXPECT_EQ(ab.Bands(2).Tools(1).Name(), "miSep");
    EXPECT_EQ(ab.Bands(2).Tools(2).Name(), "miFExit");
    EXPECT_EQ(&ab.Bands("mnuFile").Tools("miFExit"), &ab.Bands(2).Tools(2));
}

TEST_F(CommandBarTest, UnknownBandsAndToolsAreElementNotFound) {
    EXPECT_EQ(raisedError([&] { ab.Bands(4); }), basic::kElementNotFound);
    EXPECT_EQ(raisedError([&] { ab.Bands(-1); }), basic::kElementNotFound);
    EXPECT_EQ(raisedError([&] { ab.Bands("mnuNone"); }), basic::kElementNotFound);
    EXPECT_EQ(raisedError([&] { ab.Bands(0).Tools(4); }), basic::kElementNotFound);
    EXPECT_EQ(raisedError([&] { ab.Bands(0).Tools("miNone"); }), basic::kElementNotFound);
}

TEST_F(CommandBarTest, AButtonIsOneClickOfItsOwnTool) {
    Tool& play = ab.Bands("Status").Tools("miSPlay");
    QTest::mouseClick(&button(play), Qt::LeftButton);
    EXPECT_THAT(clicked, ElementsAre(&play));
}

TEST_F(CommandBarTest, AMenuIsReachedByItsAccessKeys) {
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
    QMenu& menu = *ab.Bands("mnuFile").menu();
    ASSERT_TRUE(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_E);
    EXPECT_THAT(clicked, ElementsAre(&ab.Bands("mnuFile").Tools("miFExit")));
}

TEST_F(CommandBarTest, F10OpensTheFirstMenu) {
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F10);
    QMenu& menu = *ab.Bands("mnuFile").menu();
    ASSERT_TRUE(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_THAT(clicked, ElementsAre(&ab.Bands("mnuFile").Tools("miFExit")));
}

TEST_F(CommandBarTest, AShortcutClicksItsToolFromTheWholeWindow) {
    Tool& exit = ab.Bands("mnuFile").Tools("miFExit");
    exit.SetShortcuts({Qt::CTRL | Qt::Key_Q, Qt::Key_F4});
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_F4);
    EXPECT_THAT(clicked, ElementsAre(&exit, &exit));
}

TEST_F(CommandBarTest, AShortcutMayBeGoodForOneWidgetOnly) {
    auto* list = new QLineEdit;
    ab.SetClientAreaControl(list);
    Tool& play = ab.Bands("mnuFile").Tools("miSPlay");
    play.SetShortcuts({Qt::Key_Return}, list);
    Tool& stop = ab.Bands("Status").Tools("miSStop");
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(&window);
    button(stop).setFocus();
    QTest::keyClick(&button(stop), Qt::Key_Return);
    EXPECT_THAT(clicked, IsEmpty());
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Return);
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

TEST_F(CommandBarTest, ButtonsAreReachedByTheTabKey) {
    EXPECT_TRUE(button(ab.Bands("Status").Tools("miSStop")).focusPolicy() & Qt::TabFocus);
}

TEST_F(CommandBarTest, ADropDownMayBeAddedBeforeOrAfterWhatOpensIt) {
    Tool& later = ab.Bands("Menu").AddTool("miHelp", "&Help");
    later.SetSubBand("mnuHelp");
    EXPECT_EQ(later.action()->menu(), nullptr);
    Band& help = ab.AddBand("mnuHelp", "Help", BandKind::DropDown);
    EXPECT_EQ(later.action()->menu(), help.menu());
    EXPECT_EQ(ab.Bands("Menu").Tools("miFile").action()->menu(), ab.Bands("mnuFile").menu());
}

TEST_F(CommandBarTest, AContextMenuOpensAndClicksItsOwnTool) {
    ab.PopupMenu("mnuPopup", window.mapToGlobal(QPoint(20, 20)));
    QMenu& menu = *ab.Bands("mnuPopup").menu();
    ASSERT_TRUE(menu.isVisible());
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_THAT(clicked, ElementsAre(&ab.Bands("mnuPopup").Tools(0)));
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(CommandBarTest, OnlyMenusCanBeOpenedAsContextMenus) {
    EXPECT_EQ(raisedError([&] { ab.PopupMenu("Status", {}); }), basic::kInvalidProcedureCall);
    EXPECT_EQ(raisedError([&] { ab.PopupMenu("mnuNone", {}); }), basic::kElementNotFound);
}

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
    EXPECT_EQ(raisedError([&] { ab.Bands("mnuFile").Tools(0).SetCustom(&label); }),
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
