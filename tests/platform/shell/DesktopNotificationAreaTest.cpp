// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/DesktopNotificationArea.h"

#include "tests/platform/shell/FakeTrayHosts.h"

#include <QPixmap>

#include <gtest/gtest.h>

namespace shell {
namespace {

// The platform's answers, on a desktop without a notification area; the shown icons are tried on real panels.
class DesktopNotificationAreaTest : public ::testing::Test {
protected:
    DesktopNotificationAreaTest() {
        m_record.cbSize = kSizeVersion2W;
        m_record.hWnd = m_window;
        m_record.uID = 5;
        m_record.uFlags = kNifMessage | kNifIcon | kNifTip;
        m_record.uCallbackMessage = 512;
        m_record.hIcon = m_icons.add(QIcon(QPixmap(16, 16)));
        m_record.uVersion = kNotifyIconVersion;
    }
    bool call(std::uint32_t message) {
        return m_area.Shell_NotifyIconW(message, std::as_bytes(std::span(&m_record, 1)));
    }

    WindowTable m_windows;
    IconTable m_icons;
    FakeTrayHosts m_hosts;
    DesktopNotificationArea m_area{m_windows, m_icons, m_hosts};
    WindowHandle m_window = m_windows.add([](const Message&) {});
    NOTIFYICONDATAW m_record;
};

TEST_F(DesktopNotificationAreaTest, AddsModifiesAndDeletesAnIcon) {
    EXPECT_TRUE(call(kNimAdd));
    EXPECT_TRUE(call(kNimSetVersion));
    EXPECT_TRUE(call(kNimModify));
    EXPECT_TRUE(call(kNimDelete));
}

TEST_F(DesktopNotificationAreaTest, TakesBothLayouts) {
    NOTIFYICONDATAA narrow;
    narrow.cbSize = kSizeVersion1A;
    narrow.hWnd = m_window;
    EXPECT_TRUE(m_area.Shell_NotifyIconA(kNimAdd, std::as_bytes(std::span(&narrow, 1))));
    EXPECT_FALSE(m_area.Shell_NotifyIconW(kNimAdd, std::as_bytes(std::span(&narrow, 1))));
}

TEST_F(DesktopNotificationAreaTest, RefusesToAddTwice) {
    EXPECT_TRUE(call(kNimAdd));
    EXPECT_FALSE(call(kNimAdd));
    m_record.uID = 6;
    EXPECT_TRUE(call(kNimAdd));
}

TEST_F(DesktopNotificationAreaTest, RefusesToChangeOrDeleteWhatIsNotThere) {
    EXPECT_FALSE(call(kNimModify));
    EXPECT_FALSE(call(kNimDelete));
    EXPECT_FALSE(call(kNimSetVersion));
}

TEST_F(DesktopNotificationAreaTest, RefusesAWindowThatDoesNotExist) {
    m_record.hWnd = m_window + 1;
    EXPECT_FALSE(call(kNimAdd));
}

TEST_F(DesktopNotificationAreaTest, RefusesAnUnknownIconHandleOnlyWhenItIsMeant) {
    m_record.hIcon = 0xDEADBEEF;
    EXPECT_FALSE(call(kNimAdd));
    m_record.uFlags = kNifTip;
    EXPECT_TRUE(call(kNimAdd));
}

TEST_F(DesktopNotificationAreaTest, KnowsTheVersionsZeroAndThree) {
    ASSERT_TRUE(call(kNimAdd));
    m_record.uVersion = 0;
    EXPECT_TRUE(call(kNimSetVersion));
    m_record.uVersion = 4;
    EXPECT_FALSE(call(kNimSetVersion));
}

TEST_F(DesktopNotificationAreaTest, RefusesUnknownMessagesAndMalformedRecords) {
    EXPECT_FALSE(call(3));
    EXPECT_FALSE(call(0xFFFFFFFF));
    m_record.cbSize = 935;
    EXPECT_FALSE(call(kNimAdd));
    EXPECT_FALSE(m_area.Shell_NotifyIconW(kNimAdd, {}));
}

} // namespace
} // namespace shell
