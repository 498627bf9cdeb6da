// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmMain.h"

#include "app/CommandBarLayout.h"
#include "app/ListAndTabs.h"
#include "app/LoadCaptions.h"
#include "app/Shortcuts.h"
#include "errors/ErrorsIgnored.h"
#include "errors/Procedure.h"
#include "platform/basic/ObjectOf.h"
#include "platform/forms/ListViewMacros.h"
#include "platform/forms/ModalState.h"
#include "resources/Icons.h"
#include "resources/LocalText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QScreen>

#include <utility>

namespace app {
namespace {

using resources::localText;

constexpr QSize kFirstSize{760, 460};

// Whoever else was handed the connection finds it closed. One that does not close is left as it is.
void release(std::shared_ptr<jet::Connection>& connection) {
    errors::withErrorsIgnored([&] {
        if (connection)
            connection->Close();
    });
    connection.reset();
}

} // namespace

frmMain::frmMain(const MainServices& services)
    : m_services(services), m_ab(*this), m_TabStrip(this), m_lsCalls(&m_TabStrip),
      m_selection(
          {services.errorHandler, services.common, m_lsCalls, m_TabStrip, m_state,
           [this](const auto& connection, const auto& callID) { Q_EMIT ItemChanged(connection, callID); }}),
      m_callDetails({services.errorHandler, *this, *this, *this}),
      m_buttonStates(
          {services.errorHandler, m_ab, m_lsCalls,
           [this] {
               return PlaybackState{m_ctlAudio.IsPlaying(), m_ctlAudio.IsPaused(), m_ctlAudio.HasFile()};
           }}),
      m_callList({services.errorHandler,
                  services.common,
                  {services.errorHandler, services.dateTimeFormat},
                  m_lsCalls,
                  m_TabStrip,
                  m_state,
                  *this}),
      m_poll({services.errorHandler, services.common, m_TabStrip, m_mTimer, m_state, *this,
              [this](std::int32_t newCalls) { m_alert.announce(newCalls); }, m_services.shareAccess}),
      m_mailboxData({services.errorHandler, services.common, services.files, m_lsCalls, m_TabStrip, m_mTimer,
                     m_state, *this}),
      m_commands({m_services, *this, m_lsCalls, m_TabStrip, m_state, *this, m_callDetails, m_ctlAudio}),
      m_alert({m_services, m_state, *this}), m_trayEvents({services.errorHandler, m_mTimer, m_state, *this}),
      m_listEvents(
          {services.errorHandler, m_lsCalls, m_TabStrip, m_ab, m_state, *this, m_services.shareAccess}),
      m_messages(services.errorHandler, m_lsCalls, m_TabStrip), m_ctlAudio(services.player) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowIcon(resources::programIcon());
    prepareListAndTabs(m_lsCalls, m_TabStrip);
    placeOnScreen();
    layOutCommandBar(m_ab);
    addShortcuts(m_ab, m_lsCalls);
    connectEvents();
}

frmMain::~frmMain() = default;

// In the middle: dialogs that are opened while the window is hidden come up where it would stand.
void frmMain::placeOnScreen() {
    QRect place({}, kFirstSize);
    place.moveCenter(screen()->availableGeometry().center());
    setGeometry(place);
}

void frmMain::connectEvents() {
    m_messages.attach();
    connect(&m_ab, &forms::CommandBar::ToolClick, this,
            [this](forms::Tool& tool) { ab_ToolClick(tool.Name()); });
    connect(&m_ctlAudio, &audio::ctlAudio::StateChanged, this, [this] { UpdateButtonStates(); });
    connect(&m_mTimer, &forms::Timer::ThatTime, this, [this] {
        showIfUnreachable();
        mTimer_ThatTime();
    });
}

// While the window unloads, events run; what they ask for comes too late.
void frmMain::mTimer_ThatTime() {
    if (!m_isUnloaded)
        m_poll.mTimer_ThatTime();
}

void frmMain::Form_Load() {
    errors::Procedure proc{m_services.errorHandler, "frmMain", "Form_Load"};
    proc.step([&] { LoadCaptions(m_services.errorHandler, *this, m_ab); });
    proc.step([&] { setWindowTitle(localText(3682, "Quillamar Calls")); });
    proc.step([&] { dockPlayer(); });
    proc.step([&] { m_ab.SetClientAreaControl(&m_TabStrip); });
    proc.step([&] { m_TabStrip.Tabs().Clear(); });
    proc.step([&] { forms::selectFullRows(m_lsCalls); });
    proc.step([&] { loadTrayIcon(); });
    proc.step([&] { hide(); });
    proc.step([&] { m_state.config = m_services.newConfig(); });
    const auto config = m_state.config;
    proc.step([&] { basic::objectOf(config).LoadConfig(); });
    // A report lets events run, and the user or the session may have ended the program in one.
    if (m_isUnloaded || m_state.exitRequested)
        return;
    proc.step([&] { loadDialogs(); });
    if (proc.value(false, [&] { return basic::objectOf(config).ServerName.empty(); }))
        proc.step([&] { m_commands.ShowOptions(); });
    if (m_isUnloaded || m_state.exitRequested)
        return;
    proc.step([&] { InitData(); });
    proc.step([&] { showIfUnreachable(); });
}

void frmMain::loadTrayIcon() {
    m_frmSysTray = std::make_unique<tray::frmSysTray>(m_services.tray, localText(5004, "Quillamar Client"),
                                                      windowIcon());
    m_frmSysTray->Load();
    m_trayEvents.attach(*m_frmSysTray);
    m_frmSysTray->setToolTip(QStringLiteral("Quillamar"));
    m_frmSysTray->setIconHandle(m_services.tray.icons.add(resources::trayIcon()));
}

void frmMain::loadDialogs() {
    m_alert.load();
    m_callDetails.load(
        {m_services.errorHandler, m_services.clipboard, m_services.dateTimeFormat, QLocale::system()});
}

QMetaObject::Connection frmMain::whenItemChanged(QObject& listener, ItemChangedHandler handler) {
    return connect(this, &frmMain::ItemChanged, &listener, std::move(handler));
}

void frmMain::ab_ToolClick(std::string_view toolName) {
    if (!m_isUnloaded)
        m_commands.ab_ToolClick(toolName);
}

void frmMain::dockPlayer() {
    m_ab.Bands(kBandStatus).Tools("miSProgress").SetCustom(&m_ctlAudio);
}

void frmMain::showWindow() {
    if (m_isUnloaded)
        return;
    forms::showNonModal(*this);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void frmMain::hideWindow() {
    if (m_closeMinimises)
        showMinimized();
    else
        hide();
}

void frmMain::notificationAreaMissing() {
    m_closeMinimises = m_showsWhenPossible = true;
    showIfUnreachable();
}

// A hidden window of a program without an icon could never be reached again.
void frmMain::showIfUnreachable() {
    if (m_showsWhenPossible && !forms::isModalUp()) {
        m_showsWhenPossible = false;
        showWindow();
    }
}

bool frmMain::answerModalDialog() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr)
        return false;
    dialog->close();
    return true;
}

bool frmMain::Form_QueryUnload(UnloadMode mode) {
    errors::Procedure proc{m_services.errorHandler, "frmMain", "Form_QueryUnload"};
    if (mode != UnloadMode::User)
        return true;
    proc.step([&] { hideWindow(); });
    proc.step([&] { m_state.redock = true; });
    return false;
}

void frmMain::unload(UnloadMode mode) {
    if (m_isUnloaded || !Form_QueryUnload(mode))
        return;
    m_isUnloaded = true;
    Q_EMIT unloading();
    m_services.shareAccess.endWaits();
    ++m_state.generation;
    Form_Unload();
    hide();
    answerModalDialog(); // the start-up may wait for one, before there is an event loop to quit
    Q_EMIT unloaded();
}

void frmMain::Form_Unload() {
    errors::Procedure proc{m_services.errorHandler, "frmMain", "Form_Unload"};
    proc.step([&] { m_ctlAudio.UnInit(); });
    proc.step([&] { m_ab.Bands(kBandStatus).Tools("miSProgress").SetCustom(nullptr); });
    proc.step([&] { m_messages.detach(); });
    proc.step([&] { m_mTimer.SetEnabled(false); });
    if (m_frmSysTray)
        proc.step([&] { m_frmSysTray->Unload(); });
    // It may be further up the stack, waiting for the click that led here.
    proc.step([&] {
        if (auto* icon = m_frmSysTray.release())
            icon->deleteLater();
    });
    proc.step([&] { release(m_state.currentConnection); });
    proc.step([&] { release(m_state.listConnection); });
    proc.step([&] { m_state.config.reset(); });
    proc.step([&] { m_callDetails.unload(); });
    proc.step([&] { m_alert.unload(); });
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->setAccepted(m_isUnloaded);
    if (!event->isAccepted())
        unload(UnloadMode::User);
}

void frmMain::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_state.redock = true;
    QMainWindow::changeEvent(event);
}

void frmMain::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    layOut();
}

} // namespace app
