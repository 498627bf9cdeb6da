// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Keys that run commands in the real window.
#include "app/Shortcuts.h"

#include "app/CommandBarLayout.h"
#include "tests/app/MainWorld.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

#include <gmock/gmock.h>

namespace app {
namespace {

using testing::Contains;
using testing::Not;

class ShortcutsTest : public MainWorld {
protected:
    void show() {
        configure({12});
        mailbox(12).append({"C1", "Anna", 7});
        mailbox(12).append({"C2", "Ben", 7});
        makeSound(12, "C1.wav");
        makeSound(12, "C2.wav");
        load();
        window->showWindow();
        QApplication::setActiveWindow(&*window);
        view().setFocus();
    }
    QTreeView& view() { return *list().findChild<QTreeView*>(); }
    void press(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(&view(), key, with); }
    int selected() {
        int count = 0;
        for (int i = 1; i <= list().ListItems().Count(); ++i)
            count += list().ListItems().Item(i).Selected() ? 1 : 0;
        return count;
    }
    QToolButton& button(int index) {
        auto& bar = *window->findChild<QToolBar*>();
        return *qobject_cast<QToolButton*>(bar.widgetForAction(bar.actions().at(index)));
    }
};

TEST_F(ShortcutsTest, SelectAllAndCopy) {
    show();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selected(), 2);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().count(u"\r\n"_qs), 4);
}

TEST_F(ShortcutsTest, TheOlderKeysCopyToo) {
    show();
    QApplication::clipboard()->clear();
    press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(u"Caller ID"_qs));
}

TEST_F(ShortcutsTest, ReturnEnterAndSpacePlayInTheList) {
    show();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        press(Qt::Key_Down);
        ASSERT_FALSE(player().IsPlaying());
        press(key);
        EXPECT_TRUE(player().IsPlaying()) << key;
        window->ab_ToolClick("miSStop");
    }
}

TEST_F(ShortcutsTest, AKeyThatIsHeldRunsItsCommandOnce) {
    show();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    sound.takeLog();
    QTest::simulateEvent(&view(), true, Qt::Key_Return, {}, u"\r"_qs, true);
    EXPECT_THAT(sound.takeLog(), testing::IsEmpty());
    EXPECT_TRUE(player().IsPlaying());
}

TEST_F(ShortcutsTest, SpaceOnAButtonPressesThatButtonOnly) {
    show();
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    sound.takeLog();
    button(1).setFocus();
    QTest::keyClick(&button(1), Qt::Key_Space);
    EXPECT_TRUE(player().IsPaused());
    EXPECT_THAT(sound.takeLog(), Not(Contains(testing::StartsWith("Filename"))));
}

TEST_F(ShortcutsTest, HideAndExit) {
    show();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->isUnloaded());
    window->showWindow();
    QApplication::setActiveWindow(&*window);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(window->isUnloaded());
}

TEST_F(ShortcutsTest, ShiftF10OpensTheContextMenu) {
    show();
    press(Qt::Key_F10, Qt::ShiftModifier);
    QMenu* menu = window->ab().Bands("mnuPopup").menu();
    ASSERT_TRUE(menu->isVisible());
    menu->close();
}

// Reached by any tool's name, whatever it is wired to.
TEST_F(ShortcutsTest, NoTwoToolsShareAKeyAndNoneHidesAnAccessKey) {
    QMainWindow other;
    forms::CommandBar ab(other);
    layOutCommandBar(ab);
    QWidget listWidget;
    addShortcuts(ab, listWidget);
    std::vector<std::string> keys;
    for (int band = 0; band < ab.BandCount(); ++band)
        for (int tool = 0; tool < ab.Bands(band).ToolCount(); ++tool)
            for (const QKeySequence& key : ab.Bands(band).Tools(tool).action()->shortcuts())
                keys.push_back(key.toString().toStdString());
    EXPECT_EQ(keys.size(), 12U);
    EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), keys.size());
    for (const char* accessKey : {"Alt+F", "Alt+E", "Alt+T", "Alt+H", "Alt+B", "Alt+X", "F10", "Shift+F10"})
        EXPECT_THAT(keys, Not(Contains(accessKey)));
}

TEST_F(ShortcutsTest, NothingIsDeletedByAKey) {
    QMainWindow other;
    forms::CommandBar ab(other);
    layOutCommandBar(ab);
    QWidget listWidget;
    addShortcuts(ab, listWidget);
    EXPECT_TRUE(ab.Bands("mnuEdit").Tools("miEClear").action()->shortcuts().isEmpty());
}

} // namespace
} // namespace app
