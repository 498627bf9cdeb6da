// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the tests of the tray icon component stand on: the component over a recording notification area, its
// events as texts.

#include "tests/tray/RecordingArea.h"
#include "tray/frmSysTray.h"

#include <QAction>
#include <QCoreApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QStringList>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>

namespace tray {

// Answers of GetVersion.
inline constexpr std::uint32_t kNt4 = 0x05650004;
inline constexpr std::uint32_t kNt5 = 0x08930005;
inline constexpr std::uint32_t kNot4x90 = 0xC0005A04;
inline constexpr std::uint32_t kNot4x10 = 0xC0000A04;
inline QIcon someIcon(Qt::GlobalColor colour) {
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

} // namespace tray
