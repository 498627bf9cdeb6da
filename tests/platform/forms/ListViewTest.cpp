// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/forms/CallListFixture.h"

#include <QAction>
#include <QApplication>

#include <gmock/gmock.h>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using ListViewTest = CallListFixture;

TEST_F(ListViewTest, AFilledListHasNoSelection) {
    fill(3);
    EXPECT_EQ(selectedKey(), "none");
    EXPECT_THAT(keysSelected(), IsEmpty());
}

TEST_F(ListViewTest, ARefilledListHasNoSelection) {
    fill(3);
    click(2);
    ASSERT_EQ(selectedKey(), "K2");
    list.ListItems().Clear();
    fill(3);
    EXPECT_EQ(selectedKey(), "none");
    EXPECT_THAT(keysSelected(), IsEmpty());
}

TEST_F(ListViewTest, AMouseClickSelectsBeforeItIsTold) {
    fill(3);
    std::string seen;
    QObject::connect(&list, &ListView::ItemClick, [&] { seen = selectedKey(); });
    click(2);
    EXPECT_EQ(seen, "K2");
    EXPECT_THAT(events, ElementsAre("ItemClick 2", "Click", "MouseUp 1"));
}

TEST_F(ListViewTest, AKeySelectsBeforeItIsTold) {
    fill(3);
    click(1);
    events.clear();
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_THAT(events, ElementsAre("ItemClick 2"));
}

TEST_F(ListViewTest, AKeyThatSelectsNothingIsNotTold) {
    fill(3);
    click(1);
    events.clear();
    QTest::keyClick(&view(), Qt::Key_Up);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListViewTest, SelectingByTheProgramIsNotTold) {
    fill(3);
    list.SetSelectedItem(list.ListItems().Item(2));
    list.ListItems().Item(3).SetSelected(true);
    list.Refresh();
    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ListViewTest, WithoutMultipleSelectionTheSelectedItemIsTheOnlyOne) {
    fill(4);
    for (int i = 1; i <= 4; ++i)
        list.ListItems().Item(i).SetSelected(true);
    list.SetMultiSelect(false);
    list.SetSelectedItem(list.ListItems().Item(3));
    list.SetMultiSelect(true);
    EXPECT_THAT(keysSelected(), ElementsAre("K3"));
}

TEST_F(ListViewTest, ControlClickAddsToTheSelection) {
    fill(4);
    click(1);
    click(3, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_THAT(keysSelected(), ElementsAre("K1", "K3"));
    EXPECT_EQ(selectedKey(), "K3");
}

TEST_F(ListViewTest, TheFocusedItemIsNoSelectedItemOnceItIsDeselected) {
    fill(4);
    click(1);
    click(3, Qt::LeftButton, Qt::ControlModifier);
    click(3, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_THAT(keysSelected(), ElementsAre("K1"));
    EXPECT_EQ(selectedKey(), "none");
}

TEST_F(ListViewTest, AUserClickAfterSelectingByTheProgramCountsOnTopOfIt) {
    fill(4);
    list.ListItems().Item(1).SetSelected(true);
    list.ListItems().Item(2).SetSelected(true);
    click(4, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_THAT(keysSelected(), ElementsAre("K1", "K2", "K4"));
}

TEST_F(ListViewTest, AUserClickRightAfterSelectingByTheProgramReplacesIt) {
    fill(4);
    list.ListItems().Item(1).SetSelected(true);
    list.ListItems().Item(2).SetSelected(true);
    click(4);
    EXPECT_THAT(keysSelected(), ElementsAre("K4"));
}

TEST_F(ListViewTest, AClickOnTheEmptyPartDeselectsAndIsTold) {
    fill(2);
    click(1);
    events.clear();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, emptyPart());
    EXPECT_EQ(selectedKey(), "none");
    EXPECT_THAT(events, ElementsAre("Click", "MouseUp 1"));
}

TEST_F(ListViewTest, ARightClickSelectsItsItem) {
    fill(3);
    click(2, Qt::RightButton);
    EXPECT_EQ(selectedKey(), "K2");
    EXPECT_THAT(events, ElementsAre("ItemClick 2", "MouseUp 2"));
}

TEST_F(ListViewTest, ARightClickOnTheEmptyPartIsTold) {
    fill(1);
    QTest::mouseClick(view().viewport(), Qt::RightButton, {}, emptyPart());
    EXPECT_THAT(events, ElementsAre("MouseUp 2"));
    EXPECT_EQ(mouseUpAt, view().viewport()->mapToGlobal(emptyPart()));
}

TEST_F(ListViewTest, TheContextMenuKeyIsTheRightButtonOnTheFocusedItem) {
    fill(3);
    click(2);
    events.clear();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(view().viewport(), &key);
    EXPECT_THAT(events, ElementsAre("MouseUp 2"));
    const QPoint inRow = view().viewport()->mapFromGlobal(mouseUpAt);
    EXPECT_EQ(view().indexAt(inRow).row(), 1);
}

TEST_F(ListViewTest, HomeSelectsTheFirstItemThatOnlyHadTheFocus) {
    fill(3);
    QCoreApplication::processEvents();
    view().setFocus();
    view().selectionModel()->setCurrentIndex(view().model()->index(0, 0), QItemSelectionModel::NoUpdate);
    ASSERT_EQ(selectedKey(), "none");
    QTest::keyClick(&view(), Qt::Key_Home);
    EXPECT_EQ(selectedKey(), "K1");
    EXPECT_THAT(events, ElementsAre("ItemClick 1"));
}

TEST_F(ListViewTest, SpaceSelectsBeforeItIsAShortcut) {
    fill(3);
    QCoreApplication::processEvents();
    QAction action;
    action.setShortcut(Qt::Key_Space);
    int shortcuts = 0;
    QObject::connect(&action, &QAction::triggered, [&] { ++shortcuts; });
    list.addAction(&action);
    QApplication::setActiveWindow(list.window());
    view().setFocus();
    view().selectionModel()->setCurrentIndex(view().model()->index(0, 0), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(selectedKey(), "K1");
    EXPECT_EQ(shortcuts, 0);
    QTest::keyClick(&view(), Qt::Key_Space);
    EXPECT_EQ(shortcuts, 1);
}

TEST_F(ListViewTest, ShiftF10IsTheRightButtonOnTheFocusedItem) {
    fill(3);
    click(2);
    events.clear();
    QTest::keyClick(&view(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_THAT(events, ElementsAre("MouseUp 2"));
    EXPECT_EQ(view().indexAt(view().viewport()->mapFromGlobal(mouseUpAt)).row(), 1);
}

TEST_F(ListViewTest, ADoubleClickIsToldAndItsSecondReleaseIsNoClick) {
    fill(2);
    click(2);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, cell(2));
    QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, cell(2));
    EXPECT_THAT(events, ElementsAre("ItemClick 2", "Click", "MouseUp 1", "DblClick", "MouseUp 1"));
}

TEST_F(ListViewTest, EveryRowIsReachedByKeyboard) {
    fill(100);
    QTest::keyClick(&view(), Qt::Key_Home);
    EXPECT_EQ(selectedKey(), "K1");
    QTest::keyClick(&view(), Qt::Key_End);
    EXPECT_EQ(selectedKey(), "K100");
    QTest::keyClick(&view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(keysSelected().size(), 100U);
}

TEST_F(ListViewTest, TheCopyKeyIsLeftToTheWindow) {
    fill(1);
    click(1);
    QKeyEvent copy(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::sendEvent(&view(), &copy);
    EXPECT_FALSE(copy.isAccepted());
}

TEST_F(ListViewTest, EnsureVisibleScrollsToTheItem) {
    fill(500);
    const ListItem last = list.ListItems().Item(500);
    list.EnsureVisible(last);
    EXPECT_TRUE(view().viewport()->rect().contains(cell(500)));
}

TEST_F(ListViewTest, WithoutFullRowsOnlyTheFirstColumnTakesAClick) {
    fill(2);
    list.sendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, 0);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, cell(2, 1));
    EXPECT_EQ(selectedKey(), "none");
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, cell(2, 0));
    EXPECT_EQ(selectedKey(), "K2");
}

TEST_F(ListViewTest, AHandlerMayRefillTheList) {
    fill(3);
    QObject::connect(&list, &ListView::ItemClick, [this] {
        list.ListItems().Clear();
        list.ColumnHeaders().Clear();
        addColumns();
        list.ListItems().Add("K9", "");
    });
    click(2);
    EXPECT_EQ(list.ListItems().Count(), 1);
    EXPECT_EQ(selectedKey(), "none");
}

} // namespace
} // namespace forms
