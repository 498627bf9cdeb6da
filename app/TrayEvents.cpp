// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TrayEvents.h"

#include "errors/ErrorsIgnored.h"
#include "errors/Procedure.h"
#include "platform/forms/ModalState.h"
#include "platform/forms/MouseButtons.h"
#include "resources/LocalText.h"

namespace app {
namespace {

using resources::localText;

constexpr int kExitDelayMs = 200;
constexpr int kNextDialogMs = 50;

} // namespace

TrayEvents::TrayEvents(Parts parts) : m_parts(parts) {
    connect(&m_answering, &QTimer::timeout, this, &TrayEvents::answerDialogs);
}

void TrayEvents::attach(tray::frmSysTray& icon) {
    icon.AddMenuItem(localText(3683, "&View Call Log"), QStringLiteral("open"), true);
    icon.AddMenuItem(localText(3684, "&Settings"), QStringLiteral("config"), false);
    icon.AddMenuItem(QStringLiteral("-"), QString(), false);
    icon.AddMenuItem(localText(121, "About Quillamar"), QStringLiteral("about"), false);
    icon.AddMenuItem(localText(3770, "Close Quillamar Client"), QStringLiteral("close"), false);

    connect(&icon, &tray::frmSysTray::MenuClick, this,
            [this](int, const QString& key) { m_frmSysTray_MenuClick(key); });
    connect(&icon, &tray::frmSysTray::SysTrayDoubleClick, this,
            [this] { m_frmSysTray_SysTrayDoubleClick(); });
    connect(&icon, &tray::frmSysTray::SysTrayMouseDown, this,
            [this, &icon](int button) { m_frmSysTray_SysTrayMouseDown(icon, button); });
}

// No trap (frmMain, m_frmSysTray_SysTrayDoubleClick): ignores all errors.
void TrayEvents::m_frmSysTray_SysTrayDoubleClick() {
    errors::withErrorsIgnored([this] { show(); });
}

// No trap (frmMain, m_frmSysTray_SysTrayMouseDown): ignores all errors.
void TrayEvents::m_frmSysTray_SysTrayMouseDown(tray::frmSysTray& icon, int button) {
    if (button == forms::kRightButton)
        errors::withErrorsIgnored([&icon] { icon.ShowMenu(); });
}

// While a dialog is up the window may not come; the dialog is what is waited for then.
void TrayEvents::show() {
    if (!forms::bringModalToFront())
        m_parts.main.showWindow();
}

void TrayEvents::m_frmSysTray_MenuClick(const QString& key) {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "m_frmSysTray_MenuClick"};
    if (key == u"open")
        proc.step([&] { show(); });
    else if (key == u"config")
        proc.step([&] { m_parts.main.ab_ToolClick("miVOptions"); });
    else if (key == u"about")
        proc.step([&] { m_parts.main.ab_ToolClick("miHAbout"); });
    else if (key == u"close")
        proc.step([&] { requestExit(); });
}

// The window is not unloaded from inside the menu's handler: the next tick does it.
void TrayEvents::requestExit() {
    m_parts.state.exitRequested = true;
    m_parts.timer.SetEnabled(false);
    m_parts.timer.SetInterval(kExitDelayMs);
    m_parts.timer.SetEnabled(true);
    m_answering.start(kNextDialogMs);
    answerDialogs();
}

// No tick comes before one has ended that waits for a dialog; there may be others below it, and what goes on
// behind it may bring up the next one. It goes on before the exit tick comes.
void TrayEvents::answerDialogs() {
    if (!m_parts.timer.Enabled()) // the exit tick has come
        m_answering.stop();
    else if (m_parts.main.answerModalDialog())
        m_parts.timer.SetInterval(kExitDelayMs);
}

} // namespace app
