// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The tray icon component: one icon in the notification area from Load() to Unload(), the shell's
// notifications as events, and a popup menu whose items the owner adds at run time. It knows nothing of
// mailboxes and calls. None of its procedures traps errors. User-interface thread; events are raised from the
// event loop, never from inside a call of the owner's. The services must outlive it; destroying it unloads
// it.

#include "platform/basic/Twips.h"
#include "platform/shell/IconTable.h"
#include "platform/shell/NotificationArea.h"
#include "platform/shell/WindowTable.h"
#include "tray/TrayMenu.h"
#include "tray/TrayRecords.h"

#include <QIcon>
#include <QObject>
#include <QString>

#include <cstdint>

namespace tray {

// What the workstation stand-in answers: NT platform, version 5.0, build 2195.
inline constexpr std::uint32_t kGetVersion = 0x08930005;

struct TrayServices {
    shell::NotificationArea& area;
    shell::WindowTable& windows;
    shell::IconTable& icons;
    std::uint32_t getVersion = kGetVersion;
};

// No trap (frmSysTray): whoever calls it or handles its events answers for failures.
class frmSysTray : public QObject {
    Q_OBJECT
public:
    // The name is the tip at load, the icon that of the component's window.
    frmSysTray(const TrayServices& services, QString programName, QIcon windowIcon,
               QObject* parent = nullptr);
    ~frmSysTray() override;

    void Load();
    void Unload();

    // Empty on the wide interface, whatever was set.
    QString ToolTip() const { return m_records.narrowTip(); }
    void setToolTip(const QString& text);
    shell::IconHandle IconHandle() const { return m_records.icon(); }
    void setIconHandle(shell::IconHandle handle);
    std::int16_t DefaultMenuIndex() const { return m_defaultMenuIndex; }
    void setDefaultMenuIndex(std::int16_t index);

    // The caption "-" makes a separator. Answers the new item's index.
    std::int16_t AddMenuItem(const QString& Caption, const QString& Key, bool IsDefault);
    void EnableMenuItem(std::int16_t Index, bool Enabled);
    void RemoveMenuItem(std::int16_t Index);
    void ShowMenu();
    // The time-out is in milliseconds; error 6 when it does not fit 32 bits.
    void ShowBalloonTip(const QString& Message, const QString& Title, std::int32_t IconFlags,
                        double Timeout = 10000);

Q_SIGNALS:
    void SysTrayMouseDown(int Button);
    void SysTrayMouseUp(int Button);
    void SysTrayMouseMove();
    void SysTrayDoubleClick(int Button);
    void MenuClick(int Index, const QString& Key);
    void BalloonShow();
    void BalloonHide();
    void BalloonTimeOut();
    void BalloonClicked();

private:
    void windowProcedure(const shell::Message& message);
    // The notification code arrives as the horizontal coordinate of a mouse-move message.
    void Form_MouseMove(basic::Twips X);
    void raiseEvent(std::uint32_t code);

    TrayServices m_services;
    QString m_programName;
    QIcon m_windowIcon;
    TrayRecords m_records;
    TrayMenu m_menu; // mnuPopup with the control array mnuSysTray
    shell::WindowHandle m_window = 0;
    std::int16_t m_defaultMenuIndex = 0;
};

} // namespace tray
