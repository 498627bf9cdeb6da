// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the notification icon's events do: its menu's commands, and the clicks, whose failures are ignored.
// Menu commands report failures as frmMain's m_frmSysTray_MenuClick. What it is given must outlive it;
// user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "errors/ErrorHandler.h"
#include "platform/forms/Timer.h"
#include "tray/frmSysTray.h"

#include <QObject>
#include <QString>
#include <QTimer>

namespace app {

class TrayEvents : public QObject {
    Q_OBJECT
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        forms::Timer& timer;
        MainState& state;
        MainProcedures& main;
    };

    explicit TrayEvents(Parts parts);

    // Creates the icon's menu and listens. The icon must not outlive this object.
    void attach(tray::frmSysTray& icon);

    void m_frmSysTray_MenuClick(const QString& key);

private:
    void m_frmSysTray_SysTrayDoubleClick();
    void m_frmSysTray_SysTrayMouseDown(tray::frmSysTray& icon, int button);
    void show();
    void requestExit();
    void answerDialogs();

    Parts m_parts;
    QTimer m_answering; // until the exit tick has come
};

} // namespace app
