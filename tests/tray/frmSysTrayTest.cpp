// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/RuntimeError.h"
#include "tests/tray/TrayIconWorld.h"

namespace tray {
namespace {

TEST_F(frmSysTrayTest, ALeftClickRaisesOneMouseDownOnReleaseAndNoMouseUp) {
    load();
    EXPECT_EQ(eventsOf({513}), QStringList());
    EXPECT_EQ(eventsOf({514}), QStringList{u"Down 1"_qs});
}

TEST_F(frmSysTrayTest, ARightClickRaisesMouseDownThenMouseUp) {
    load();
    EXPECT_EQ(eventsOf({516, 517}), (QStringList{u"Down 2"_qs, u"Up 2"_qs}));
}

TEST_F(frmSysTrayTest, RaisesTheOtherNotificationsByTheirCodes) {
    load();
    EXPECT_EQ(eventsOf({512, 515, 518}), (QStringList{u"Move"_qs, u"Double 1"_qs, u"Double 2"_qs}));
    EXPECT_EQ(eventsOf({1026, 1027, 1028, 1029}),
              (QStringList{u"Show"_qs, u"Hide"_qs, u"TimeOut"_qs, u"Clicked"_qs}));
}

TEST_F(frmSysTrayTest, RaisesNothingForUnknownCodesAndOtherMessages) {
    load();
    EXPECT_EQ(eventsOf({0, 511, 519, 520, 1025, 1030, 65535}), QStringList());
    m_windows.post(window(), {513, 0, 514});
    QCoreApplication::processEvents();
    EXPECT_EQ(m_events, QStringList());
}

TEST_F(frmSysTrayTest, RaisesNothingAfterItWasUnloaded) {
    frmSysTray& tray = load();
    m_windows.post(window(), {512, 0, 514});
    tray.Unload();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_events, QStringList());
}

TEST_F(frmSysTrayTest, ReadsItsToolTipBackEmptyOnTheWideInterface) {
    frmSysTray& tray = load(kNt5);
    tray.setToolTip(u"Quillamar"_qs);
    EXPECT_EQ(tray.ToolTip(), QString());
}

TEST_F(frmSysTrayTest, SetsAnUnchangedToolTipAgainOnTheWideInterfaceOnly) {
    frmSysTray& wide = load(kNt5);
    wide.setToolTip(u"Quillamar"_qs);
    const std::size_t before = m_area.calls().size();
    wide.setToolTip(u"Quillamar"_qs);
    EXPECT_EQ(m_area.calls().size(), before + 1);
}

TEST_F(frmSysTrayTest, SkipsAnUnchangedToolTipOnTheNarrowInterface) {
    frmSysTray& narrow = load(kNot4x10);
    EXPECT_EQ(narrow.ToolTip(), u"qmClient"_qs);
    narrow.setToolTip(u"Grüße"_qs);
    const std::size_t before = m_area.calls().size();
    narrow.setToolTip(u"Grüße"_qs);
    EXPECT_EQ(m_area.calls().size(), before);
    EXPECT_EQ(narrow.ToolTip(), u"Grüße"_qs);
}

TEST_F(frmSysTrayTest, DoesNotCutACharacterInHalf) {
    frmSysTray& tray = load(kNt5);
    tray.setToolTip(QString(126, u'a') + u"\U0001F4DE"_qs);
    EXPECT_EQ(m_area.last().text(24, 128), std::u16string(126, u'a') + std::u16string(2, u'\0'));
}

TEST_F(frmSysTrayTest, SettingTheIconToItsValueMakesNoShellCall) {
    frmSysTray& tray = load();
    const std::size_t before = m_area.calls().size();
    tray.setIconHandle(tray.IconHandle());
    EXPECT_EQ(m_area.calls().size(), before);
}

TEST_F(frmSysTrayTest, WorksOnWhenTheShellRefuses) {
    m_area.answer(false);
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.setToolTip(u"Quillamar"_qs);
    EXPECT_EQ(eventsOf({514}), QStringList{u"Down 1"_qs});
}

TEST_F(frmSysTrayTest, RefusesATimeOutBeyondThirtyTwoBits) {
    frmSysTray& tray = load();
    try {
        tray.ShowBalloonTip(u"m"_qs, u"t"_qs, 0, 3e9);
        FAIL() << "nothing was thrown";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.number(), basic::kOverflow);
    }
}

} // namespace
} // namespace tray
