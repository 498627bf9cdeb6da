// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/frmSysTray.h"

#include "platform/basic/RuntimeError.h"
#include "tests/tray/RecordingArea.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace tray {
namespace {

// Answers of GetVersion.
constexpr std::uint32_t kNt4 = 0x05650004;
constexpr std::uint32_t kNt5 = 0x08930005;
constexpr std::uint32_t kNot4x90 = 0xC0005A04;
constexpr std::uint32_t kNot4x10 = 0xC0000A04;

QIcon someIcon(Qt::GlobalColor colour) {
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

class frmSysTrayTest : public testing::Test {
protected:
    frmSysTray& load(std::uint32_t getVersion = kGetVersion, const QString& name = u"qmClient"_qs) {
        m_tray =
            std::make_unique<frmSysTray>(TrayServices{m_area, m_windows, m_icons, getVersion}, name, m_icon);
        QObject::connect(m_tray.get(), &frmSysTray::SysTrayMouseDown, &m_context,
                         [this](int Button) { m_events << u"Down %1"_qs.arg(Button); });
        QObject::connect(m_tray.get(), &frmSysTray::SysTrayMouseUp, &m_context,
                         [this](int Button) { m_events << u"Up %1"_qs.arg(Button); });
        QObject::connect(m_tray.get(), &frmSysTray::SysTrayMouseMove, &m_context,
                         [this] { m_events << u"Move"_qs; });
        QObject::connect(m_tray.get(), &frmSysTray::SysTrayDoubleClick, &m_context,
                         [this](int Button) { m_events << u"Double %1"_qs.arg(Button); });
        QObject::connect(m_tray.get(), &frmSysTray::BalloonShow, &m_context,
                         [this] { m_events << u"Show"_qs; });
        QObject::connect(m_tray.get(), &frmSysTray::BalloonHide, &m_context,
                         [this] { m_events << u"Hide"_qs; });
        QObject::connect(m_tray.get(), &frmSysTray::BalloonTimeOut, &m_context,
                         [this] { m_events << u"TimeOut"_qs; });
        QObject::connect(m_tray.get(), &frmSysTray::BalloonClicked, &m_context,
                         [this] { m_events << u"Clicked"_qs; });
        QObject::connect(
            m_tray.get(), &frmSysTray::MenuClick, &m_context,
            [this](int Index, const QString& Key) { m_events << u"Menu %1 %2"_qs.arg(Index).arg(Key); });
        m_tray->Load();
        return *m_tray;
    }
    shell::WindowHandle window() const { return m_area.calls().front().number(4); }
    QStringList eventsOf(std::initializer_list<std::uint32_t> codes) {
        m_events.clear();
        for (const std::uint32_t code : codes)
            m_windows.post(window(), {512, 0, code});
        QCoreApplication::processEvents();
        return m_events;
    }
    void addMainWindowsMenu(frmSysTray& tray) {
        tray.AddMenuItem(u"&View Call Log"_qs, u"open"_qs, true);
        tray.AddMenuItem(u"&Settings"_qs, u"config"_qs, false);
        tray.AddMenuItem(u"-"_qs, QString(), false);
        tray.AddMenuItem(u"About"_qs, u"about"_qs, false);
        tray.AddMenuItem(u"Close"_qs, u"close"_qs, false);
    }
    QAction& item(int index) const { return *m_area.menu()->actions().at(index); }
    QString key(int index) const { return item(index).data().toString(); }

    QObject m_context;
    RecordingArea m_area;
    shell::WindowTable m_windows;
    shell::IconTable m_icons;
    QIcon m_icon = someIcon(Qt::red);
    QStringList m_events;
    std::unique_ptr<frmSysTray> m_tray;
};

struct Expected {
    std::uint32_t getVersion;
    char layout;
    std::uint32_t size;
    bool isVersion5Shell;
};

class frmSysTrayRecordTest : public frmSysTrayTest, public testing::WithParamInterface<Expected> {
protected:
    std::size_t width() const { return GetParam().layout == 'A' ? 1 : 2; }
    std::size_t tipCapacity() const { return GetParam().isVersion5Shell ? 128 : 64; }
};

// Byte for byte what the platform documents; everything that is not written stays zero.
TEST_P(frmSysTrayRecordTest, AddsTheIconWithTheRecordOfItsPlatform) {
    load(GetParam().getVersion);
    const shell::IconHandle icon = m_icons.add(m_icon);
    std::vector<std::byte> expected(GetParam().layout == 'A' ? 488 : 936);
    const auto put = [&](std::size_t offset, std::uint32_t value) {
        std::memcpy(expected.data() + offset, &value, sizeof value);
    };
    put(0, GetParam().size);
    put(4, window());
    put(8, icon);
    put(12, 7);
    put(16, 512);
    put(20, icon);
    const std::string_view name = "qmClient";
    for (std::size_t i = 0; i < name.size(); ++i)
        expected[24 + i * width()] = static_cast<std::byte>(name[i]);
    if (GetParam().isVersion5Shell)
        put(GetParam().layout == 'A' ? 416 : 800, 3);
    const ShellCall& add = m_area.calls().front();
    EXPECT_EQ(add.layout, GetParam().layout);
    EXPECT_EQ(add.message, 0U);
    EXPECT_EQ(add.record, expected);
}

TEST_P(frmSysTrayRecordTest, SetsTheVersionOnTheSameRecordOnlyWithAVersion5Shell) {
    load(GetParam().getVersion);
    ASSERT_EQ(m_area.calls().size(), GetParam().isVersion5Shell ? 2U : 1U);
    if (GetParam().isVersion5Shell) {
        EXPECT_EQ(m_area.last().message, 4U);
        EXPECT_EQ(m_area.last().record, m_area.calls().front().record);
    }
}

TEST_P(frmSysTrayRecordTest, CutsALongTipSoThatTheTerminatorFits) {
    frmSysTray& tray = load(GetParam().getVersion);
    tray.setToolTip(QString(300, u't'));
    EXPECT_EQ(m_area.last().message, 1U);
    EXPECT_EQ(m_area.last().flags(), 4U);
    const std::size_t kept = tipCapacity() - 1;
    EXPECT_EQ(m_area.last().text(24, 128), std::u16string(kept, u't') + std::u16string(128 - kept, u'\0'));
}

TEST_P(frmSysTrayRecordTest, ZeroFillsBehindAShorterTip) {
    frmSysTray& tray = load(GetParam().getVersion);
    tray.setToolTip(u"a long tip before"_qs);
    tray.setToolTip(u"b"_qs);
    EXPECT_EQ(m_area.last().text(24, 128), u"b" + std::u16string(127, u'\0'));
}

TEST_P(frmSysTrayRecordTest, ChangesTheIconWithItsFlagAlone) {
    frmSysTray& tray = load(GetParam().getVersion);
    const shell::IconHandle other = m_icons.add(someIcon(Qt::blue));
    tray.setIconHandle(other);
    EXPECT_EQ(m_area.last().message, 1U);
    EXPECT_EQ(m_area.last().flags(), 2U);
    EXPECT_EQ(m_area.last().size(), GetParam().size);
    EXPECT_EQ(m_area.last().number(20), other);
    EXPECT_EQ(m_area.last().number(8), m_icons.add(m_icon)) << "the identifier stays";
    EXPECT_EQ(tray.IconHandle(), other);
}

TEST_P(frmSysTrayRecordTest, ShowsABalloonOnlyWithAVersion5Shell) {
    frmSysTray& tray = load(GetParam().getVersion);
    const std::size_t before = m_area.calls().size();
    tray.ShowBalloonTip(QString(300, u'm'), QString(100, u'h'), 2, 4999.5);
    if (!GetParam().isVersion5Shell) {
        EXPECT_EQ(m_area.calls().size(), before);
        return;
    }
    const bool isNarrow = GetParam().layout == 'A';
    EXPECT_EQ(m_area.last().message, 1U);
    EXPECT_EQ(m_area.last().flags(), 16U);
    EXPECT_EQ(m_area.last().text(isNarrow ? 160 : 288, 256), std::u16string(255, u'm') + u'\0');
    EXPECT_EQ(m_area.last().text(isNarrow ? 420 : 804, 64), std::u16string(63, u'h') + u'\0');
    EXPECT_EQ(m_area.last().number(isNarrow ? 416 : 800), 5000U);
    EXPECT_EQ(m_area.last().number(isNarrow ? 484 : 932), 2U);
}

TEST_P(frmSysTrayRecordTest, DeletesTheIconAtUnload) {
    load(GetParam().getVersion).Unload();
    EXPECT_EQ(m_area.last().message, 2U);
    EXPECT_EQ(m_area.last().layout, GetParam().layout);
    EXPECT_EQ(m_area.last().number(4), window());
    EXPECT_EQ(m_area.menu(), nullptr);
    EXPECT_FALSE(m_windows.contains(window()));
    const std::size_t calls = m_area.calls().size();
    m_tray.reset();
    EXPECT_EQ(m_area.calls().size(), calls) << "once is enough";
}

INSTANTIATE_TEST_SUITE_P(Platforms, frmSysTrayRecordTest,
                         testing::Values(Expected{kNt5, 'W', 936, true}, Expected{kNt4, 'W', 152, false},
                                         Expected{kNot4x90, 'A', 488, true},
                                         Expected{kNot4x10, 'A', 88, false}));

TEST(PlatformVersionTest, TellsThePlatformsApart) {
    const auto flags = [](std::uint32_t answer) {
        const PlatformVersion version = decodeGetVersion(answer);
        return std::pair(version.isWide, version.isVersion5Shell);
    };
    EXPECT_EQ(flags(0x00000005), std::pair(true, true));
    EXPECT_EQ(flags(0x1DB10106), std::pair(true, true));
    EXPECT_EQ(flags(0x00005A04), std::pair(true, false)) << "4.90 means something only off NT";
    EXPECT_EQ(flags(0x80005A04), std::pair(false, true));
    EXPECT_EQ(flags(0x80005904), std::pair(false, false));
    EXPECT_EQ(flags(0x80000005), std::pair(false, false));
    EXPECT_EQ(flags(kGetVersion), std::pair(true, true));
}

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

TEST_F(frmSysTrayTest, UsesElementZeroForTheFirstItemAndAddsTheOthersBehind) {
    frmSysTray& tray = load();
    EXPECT_EQ(m_area.menu()->actions().size(), 1);
    EXPECT_FALSE(item(0).isVisible());
    EXPECT_EQ(tray.AddMenuItem(u"a"_qs, u"ka"_qs, false), 0);
    EXPECT_EQ(tray.AddMenuItem(u"b"_qs, u"kb"_qs, true), 1);
    EXPECT_EQ(tray.AddMenuItem(u"c"_qs, u"kc"_qs, false), 2);
    EXPECT_TRUE(item(0).isVisible());
    EXPECT_EQ(tray.DefaultMenuIndex(), 1);
}

TEST_F(frmSysTrayTest, ShowsADashAsASeparator) {
    addMainWindowsMenu(load());
    EXPECT_TRUE(item(2).isSeparator());
    EXPECT_EQ(item(2).text(), QString());
    EXPECT_FALSE(item(3).isSeparator());
}

TEST_F(frmSysTrayTest, AClickOnAnItemRaisesItsIndexAndKey) {
    addMainWindowsMenu(load());
    item(1).trigger();
    item(4).trigger();
    EXPECT_EQ(m_events, (QStringList{u"Menu 1 config"_qs, u"Menu 4 close"_qs}));
}

TEST_F(frmSysTrayTest, RemovingElementZeroEmptiesItsCaptionAndKeepsItsKey) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.RemoveMenuItem(0);
    EXPECT_EQ(m_area.menu()->actions().size(), 5);
    EXPECT_EQ(item(0).text(), QString());
    EXPECT_EQ(key(0), u"open"_qs);
}

TEST_F(frmSysTrayTest, RemovingItemTwoOfFiveMovesTheLaterOnesDown) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.EnableMenuItem(3, false);
    tray.RemoveMenuItem(2);
    ASSERT_EQ(m_area.menu()->actions().size(), 4);
    EXPECT_EQ(item(2).text(), u"About"_qs);
    EXPECT_FALSE(item(2).isSeparator());
    EXPECT_EQ(key(2), u"about"_qs);
    EXPECT_EQ(item(3).text(), u"Close"_qs);
    EXPECT_EQ(key(3), u"close"_qs);
    EXPECT_FALSE(item(3).isEnabled()) << "caption and key move, the enabled state stays at its place";
    item(2).trigger();
    EXPECT_EQ(m_events, QStringList{u"Menu 2 about"_qs});
}

TEST_F(frmSysTrayTest, MovesASeparatorDownAsOne) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.RemoveMenuItem(1);
    EXPECT_TRUE(item(1).isSeparator());
    EXPECT_EQ(item(2).text(), u"About"_qs);
}

TEST_F(frmSysTrayTest, IgnoresInvalidIndexes) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    for (const std::int16_t index :
         {std::int16_t{-1}, std::int16_t{5}, std::int16_t{32767}, std::int16_t{-32768}}) {
        tray.RemoveMenuItem(index);
        tray.EnableMenuItem(index, false);
    }
    EXPECT_EQ(m_area.menu()->actions().size(), 5);
    for (const QAction* action : m_area.menu()->actions())
        EXPECT_TRUE(action->isEnabled());
}

TEST_F(frmSysTrayTest, EnablesAndDisablesItems) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.EnableMenuItem(1, false);
    EXPECT_FALSE(item(1).isEnabled());
    tray.EnableMenuItem(1, true);
    EXPECT_TRUE(item(1).isEnabled());
}

TEST_F(frmSysTrayTest, ADefaultIndexBeyondTheUpperBoundReadsBackZero) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.setDefaultMenuIndex(4);
    EXPECT_EQ(tray.DefaultMenuIndex(), 4);
    tray.setDefaultMenuIndex(5);
    EXPECT_EQ(tray.DefaultMenuIndex(), 0);
    tray.setDefaultMenuIndex(4);
    tray.setDefaultMenuIndex(-1);
    EXPECT_EQ(tray.DefaultMenuIndex(), 0);
}

TEST_F(frmSysTrayTest, ShowsTheMenuOfItsWindowWithTheDefaultItemMarked) {
    frmSysTray& tray = load();
    addMainWindowsMenu(tray);
    tray.setDefaultMenuIndex(3);
    tray.ShowMenu();
    EXPECT_EQ(m_area.tracked(), std::vector{window()});
    EXPECT_EQ(m_area.menu()->defaultAction(), &item(3));
    tray.RemoveMenuItem(4);
    tray.RemoveMenuItem(3);
    tray.ShowMenu();
    EXPECT_EQ(m_area.menu()->defaultAction(), nullptr) << "its item is gone";
}

} // namespace
} // namespace tray
