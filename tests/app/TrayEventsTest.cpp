// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the notification icon's events do in the real window; the notifications come as the shell posts them.
#include "tests/app/MainWorld.h"
#include "tests/app/ScriptedMain.h"

#include <QCoreApplication>
#include <QDialog>
#include <QMenu>
#include <QTest>

namespace app {
namespace {

constexpr std::uint32_t kCallback = 512;
constexpr std::uint32_t kLeftUp = 514;
constexpr std::uint32_t kLeftDouble = 515;
constexpr std::uint32_t kRightDown = 516;
constexpr std::uint32_t kRightUp = 517;
constexpr std::uint32_t kRightDouble = 518;

class TrayEventsTest : public MainWorld {
protected:
    void SetUp() override {
        configure({12});
        mailbox(12).append(1);
        load();
    }
    void notify(std::uint32_t code) {
        windows.post(notificationArea.window, {kCallback, 0, code});
        QCoreApplication::processEvents();
    }
    void choose(int item) { notificationArea.menu->actions().at(item)->trigger(); }
};

TEST_F(TrayEventsTest, MenuHasItsItemsInOrderWithViewCallLogAsDefault) {
    QStringList texts;
    for (const QAction* action : notificationArea.menu->actions())
        texts << (action->isSeparator() ? u"-"_qs : action->text());
    EXPECT_EQ(texts, (QStringList{u"&View Call Log"_qs, u"&Settings"_qs, u"-"_qs, u"About Quillamar"_qs,
                                  u"Close Quillamar Client"_qs}));
    notify(kRightDown);
    EXPECT_EQ(notificationArea.menu->defaultAction(), notificationArea.menu->actions().at(0));
}

TEST_F(TrayEventsTest, TipIsTheProductsName) {
    EXPECT_EQ(notificationArea.tip, u"Quillamar");
}

TEST_F(TrayEventsTest, DoubleClickShowsTheWindow) {
    notify(kLeftDouble);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(TrayEventsTest, DoubleClickWithTheRightButtonShowsTheWindowToo) {
    notify(kRightDouble);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(TrayEventsTest, DoubleClickShowsAMinimisedWindowAgain) {
    window->showMinimized();
    notify(kLeftDouble);
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(TrayEventsTest, DoubleClickThatFailsIsIgnored) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    notify(kLeftDouble); // no non-modal window while a modal one is up
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(TrayEventsTest, DoubleClickAndViewCallLogBringAModalDialogToTheFront) {
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    const auto comesToTheFront = [&](auto&& action) {
        QWidget another;
        another.show();
        another.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&another));
        action();
        return QTest::qWaitForWindowActive(&dialog);
    };
    EXPECT_TRUE(comesToTheFront([this] { notify(kLeftDouble); }));
    EXPECT_TRUE(comesToTheFront([this] { choose(0); }));
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(TrayEventsTest, RightButtonShowsTheMenuOnce) {
    notify(kRightDown);
    EXPECT_EQ(notificationArea.tracked, 1);
    notify(kRightUp);
    EXPECT_EQ(notificationArea.tracked, 1);
}

TEST_F(TrayEventsTest, SingleLeftClickDoesNothing) {
    notify(kLeftUp);
    EXPECT_EQ(notificationArea.tracked, 0);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(TrayEventsTest, ViewCallLogShowsTheWindow) {
    choose(0);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(TrayEventsTest, CloseAsksForTheExitTickAfterTwoHundredMilliseconds) {
    choose(4);
    EXPECT_TRUE(window->state().exitRequested);
    EXPECT_EQ(window->timer().Interval(), 200);
    EXPECT_TRUE(window->timer().Enabled());
    EXPECT_NE(window->state().config, nullptr); // nothing is unloaded from inside the menu's handler
}

// The commands behind two of the items, by the names under which they are dispatched.
class DispatchedTrayEventsTest : public testing::Test {
protected:
    DispatchedTrayEventsTest() { icon.Load(); }

    errors::RecordingErrorHandler errors;
    QuietNotificationArea area;
    shell::WindowTable windows;
    shell::IconTable icons;
    forms::Timer timer;
    MainState state;
    ScriptedMain main;
    TrayEvents events{{errors, timer, state, main}};
    tray::frmSysTray icon{tray::TrayServices{area, windows, icons}, u"Quillamar"_qs, QIcon()};
};

TEST_F(DispatchedTrayEventsTest, SettingsAndAboutAreDispatchedAsTools) {
    events.attach(icon);
    area.menu->actions().at(1)->trigger();
    EXPECT_TRUE(main.did("ab_ToolClick miVOptions"));
    EXPECT_FALSE(main.did("ab_ToolClick miHAbout"));
    area.menu->actions().at(3)->trigger();
    EXPECT_TRUE(main.did("ab_ToolClick miHAbout"));
    EXPECT_FALSE(main.did("showWindow"));
}

TEST_F(DispatchedTrayEventsTest, AnotherKeyDoesNothing) {
    events.attach(icon);
    icon.AddMenuItem(u"Open"_qs, u"Open"_qs, false);
    area.menu->actions().back()->trigger();
    EXPECT_FALSE(main.did("showWindow"));
    EXPECT_FALSE(state.exitRequested);
    EXPECT_TRUE(errors.reports.empty());
}

} // namespace
} // namespace app
