// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/tray/TrayIconWorld.h"

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace tray {
namespace {

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

} // namespace
} // namespace tray
