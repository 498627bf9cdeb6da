// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The composition root: builds the services from what the workstation offers, hands them to the main window
// and runs the event loop. What is declared first is needed by what follows and outlives it. One object, on
// the user-interface thread, gone before the application object.

#include "app/Application.h"
#include "app/CountsAhead.h"
#include "app/LastErrors.h"
#include "app/LogOns.h"
#include "app/RememberedLogOns.h"
#include "app/SessionLoss.h"
#include "app/ShareWaiter.h"
#include "app/SingleInstance.h"
#include "app/TerminationSignals.h"
#include "app/frmMain.h"
#include "audio/basAudio.h"
#include "data/basCommon.h"
#include "data/basRegistry.h"
#include "dialogs/ServerDialog.h"
#include "dialogs/clsComBrowser.h"
#include "dialogs/frmOptions.h"
#include "errors/MailedReport.h"
#include "errors/basErrHandling.h"
#include "errors/frmError.h"
#include "platform/basic/DateTimeFormat.h"
#include "platform/basic/SystemClock.h"
#include "platform/forms/QtClipboard.h"
#include "platform/forms/QtMessageBoxes.h"
#include "platform/jet/Engine.h"
#include "platform/mediagraph/SoundSystem.h"
#include "platform/registry/Registry.h"
#include "platform/share/MountedFileSystemObject.h"
#include "platform/share/RoutedFileSystemObject.h"
#include "platform/share/smb/SmbFileSystemObject.h"
#include "platform/shell/DelayTimer.h"
#include "platform/shell/DesktopMail.h"
#include "platform/shell/DesktopNotificationArea.h"
#include "platform/shell/DesktopTrayHosts.h"
#include "platform/shell/NetworkBrowser.h"
#include "platform/shell/NotificationAreaWatch.h"
#include "platform/shell/ProgramStarter.h"
#include "platform/shell/WorkstationWindows.h"
#include "platform/shell/help/DesktopHelp.h"

namespace app {

class Program {
public:
    Program(Application& application, SingleInstance& instance);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Loads the main window and returns the process's exit code when the program is to end.
    int run();

private:
    void connectEvents(SingleInstance& instance);
    void passwordNotStored();
    shell::Remembering remembering(const std::string& server) const;
    LogOns::Services logOnServices();
    share::smb::SmbServer::Surroundings smbSurroundings();
    share::smb::SmbServer::Surroundings browsingSurroundings();
    share::smb::SmbServers::Addresses smbAddresses();
    share::ShareResolver resolver();
    jet::SharingWait sharingWait();
    ShareAccess shareAccess();
    MainServices mainServices();
    HelpServices helpServices();
    audio::PlayerServices playerServices();
    dialogs::frmServer::Services serverDialogServices();

    Application& m_application;
    basic::SystemClock m_clock;
    basic::DateTimeFormat m_dateTimeFormat;
    errors::ProgramFacts m_facts;
    errors::ErrorDialogState m_errorDialogState;
    forms::QtMessageBoxes m_messageBoxes;
    shell::DesktopMail m_mail;
    errors::MailedReport m_report;
    errors::basErrHandling m_shownErrors;
    ShareWaiter m_waiter;
    LastErrors m_errorHandler;
    forms::QtClipboard m_clipboard;
    registry::SystemCalls m_systemCalls;
    registry::Registry m_registry;
    shell::Keyring m_keyring;
    RememberedLogOns m_remembered;
    LogOns m_logOns;
    const std::shared_ptr<share::smb::Refusals> m_refusals = std::make_shared<share::smb::Refusals>();
    share::smb::SmbServers m_smbServers;
    share::MountedFileSystemObject m_folders;
    share::smb::SmbFileSystemObject m_servers;
    share::RoutedFileSystemObject m_files;
    CountsAhead m_countsAhead;
    jet::Engine m_engine;
    data::basCommon m_common;
    data::basRegistry m_values;
    mediagraph::SoundSystem m_sound;
    audio::basAudio m_audio;
    dialogs::MailboxSearch m_mailboxSearch;
    shell::NetworkBrowser m_network;
    dialogs::clsComBrowser m_browser;
    dialogs::ServerDialog m_serverDialog;
    shell::WindowTable m_windows;
    shell::IconTable m_icons;
    shell::DesktopTrayHosts m_trayHosts;
    shell::DesktopNotificationArea m_notificationArea;
    shell::EventLoopTimer m_patience;
    shell::NotificationAreaWatch m_areaWatch;
    shell::WorkstationWindows m_desktop;
    shell::help::DesktopHelp m_help;
    shell::ProgramStarter m_programs;
    TerminationSignals m_signals;
    SessionLoss m_sessionLoss;
    frmMain m_main;
};

} // namespace app
