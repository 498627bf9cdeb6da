// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A command bar that is used from the keyboard.
#include "tests/platform/forms/CommandBarTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(CommandBarTest, ButtonsAreReachedByTheTabKey) {
    EXPECT_TRUE(button(ab.Bands("Status").Tools("miSStop")).focusPolicy() & Qt::TabFocus);
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

} // namespace
} // namespace forms
