// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window, the program's start object: loading it starts the program, unloading it ends it. It owns
// the controls, the state and the parts that have the procedures; it builds them, wires them and forwards.
// The close box only hides it while the program can be reached through the notification area. The services
// must outlive it; user-interface thread.

#include "app/ButtonStates.h"
#include "app/CallDetails.h"
#include "app/CallList.h"
#include "app/ListEvents.h"
#include "app/MailboxData.h"
#include "app/MainCommands.h"
#include "app/MainProcedures.h"
#include "app/MainServices.h"
#include "app/MainState.h"
#include "app/NewCallsAlert.h"
#include "app/Poll.h"
#include "app/Selection.h"
#include "app/TrayEvents.h"
#include "app/WindowMessages.h"
#include "audio/ctlAudio.h"
#include "platform/forms/CommandBar.h"
#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/Timer.h"
#include "tray/frmSysTray.h"

#include <QMainWindow>

#include <memory>
#include <string>

namespace app {

// Why a window is unloaded, with the platform's numbers.
enum class UnloadMode { User = 0, Code = 1, SessionEnd = 2 };

class frmMain : public QMainWindow, public MainProcedures, public dialogs::CallSelection {
    Q_OBJECT
public:
    explicit frmMain(const MainServices& services);
    ~frmMain() override;

    void Form_Load();

    // MainProcedures
    void InitData() override { m_mailboxData.InitData(); }
    bool InitConnection() override { return m_mailboxData.InitConnection(); }
    void LoadList() override {
        if (!m_isUnloaded)
            m_callList.LoadList();
    }
    void ChangeItem() override { m_selection.ChangeItem(); }
    void UpdateButtonStates() override { m_buttonStates.UpdateButtonStates(); }
    void mTimer_ThatTime() override;
    void ab_ToolClick(std::string_view toolName) override;
    void showWindow() override;
    void hideWindow() override;
    void dockPlayer() override;
    void layOut() override { m_messages.layOut(); }
    bool answerModalDialog() override;
    void unload() override { unload(UnloadMode::Code); }

    // dialogs::CallSelection
    QMetaObject::Connection whenItemChanged(QObject& listener, ItemChangedHandler handler) override;
    void MoveList(bool down) override { m_selection.MoveList(down); }

    void unload(UnloadMode mode);
    // There is no notification area: the window shows itself, at the next tick after a modal window is gone
    // at the latest, and its close box only minimises it until there is one again.
    void notificationAreaMissing();
    void notificationAreaReturned() { m_closeMinimises = m_showsWhenPossible = false; }

    bool isUnloaded() const { return m_isUnloaded; }

    // What tests and the details dialog look at.
    MainState& state() { return m_state; }
    forms::Timer& timer() { return m_mTimer; }
    WindowMessages& messages() { return m_messages; }
    const forms::CommandBar& ab() const { return m_ab; }

Q_SIGNALS:
    void ItemChanged(const std::shared_ptr<jet::Connection>& connection, const std::string& callID);
    // Nobody is to be asked anything any more. Form_Unload lets events run, and a key or a click among them
    // may open a dialog, which would keep the program from ending.
    void unloading();
    // Form_Unload has run to its end.
    void unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeOnScreen();
    void connectEvents();
    void loadTrayIcon();
    void loadDialogs();
    bool Form_QueryUnload(UnloadMode mode);
    void Form_Unload();
    void showIfUnreachable();

    MainServices m_services;
    MainState m_state;
    forms::CommandBar m_ab;
    forms::TabStrip m_TabStrip;
    forms::ListView m_lsCalls;
    forms::Timer m_mTimer;

    Selection m_selection;
    CallDetails m_callDetails;
    ButtonStates m_buttonStates;
    CallList m_callList;
    Poll m_poll;
    MailboxData m_mailboxData;
    MainCommands m_commands;
    NewCallsAlert m_alert;
    TrayEvents m_trayEvents;
    ListEvents m_listEvents;
    WindowMessages m_messages;

    std::unique_ptr<tray::frmSysTray> m_frmSysTray;
    bool m_isUnloaded = false;
    bool m_closeMinimises = false;
    bool m_showsWhenPossible = false;
    audio::ctlAudio m_ctlAudio; // last: letting it go lets events run
};

} // namespace app
