// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tray/frmSysTray.h"

#include "platform/basic/Conversion.h"
#include "platform/forms/MouseButtons.h"

#include <utility>

namespace tray {

frmSysTray::frmSysTray(const TrayServices& services, QString programName, QIcon windowIcon, QObject* parent)
    : QObject(parent), m_services(services), m_programName(std::move(programName)),
      m_windowIcon(std::move(windowIcon)), m_records(services.area, decodeGetVersion(services.getVersion)) {
    connect(&m_menu, &TrayMenu::clicked, this, &frmSysTray::MenuClick);
}

frmSysTray::~frmSysTray() {
    Unload();
}

void frmSysTray::Load() {
    if (m_window != 0)
        return;
    m_window = m_services.windows.add([this](const shell::Message& message) { windowProcedure(message); });
    m_services.area.setMenu(m_window, &m_menu.popup());
    m_records.fill(m_window, m_services.icons.add(m_windowIcon), m_programName);
    m_records.call(shell::kNimAdd, shell::kNifMessage | shell::kNifIcon | shell::kNifTip);
    if (m_records.isVersion5Shell())
        m_records.call(shell::kNimSetVersion);
}

void frmSysTray::Unload() {
    if (m_window == 0)
        return;
    m_records.call(shell::kNimDelete);
    m_services.area.setMenu(m_window, nullptr);
    m_services.windows.remove(std::exchange(m_window, 0));
}

void frmSysTray::setToolTip(const QString& text) {
    if (!m_records.isWide() && text == ToolTip())
        return;
    m_records.setTip(text);
    m_records.call(shell::kNimModify, shell::kNifTip);
}

void frmSysTray::setIconHandle(shell::IconHandle handle) {
    if (handle == IconHandle())
        return;
    m_records.setIcon(handle);
    m_records.call(shell::kNimModify, shell::kNifIcon);
}

void frmSysTray::setDefaultMenuIndex(std::int16_t index) {
    m_defaultMenuIndex = m_menu.isValid(index) ? index : std::int16_t{0};
}

std::int16_t frmSysTray::AddMenuItem(const QString& Caption, const QString& Key, bool IsDefault) {
    const std::int16_t index = m_menu.add(Caption, Key);
    if (IsDefault)
        setDefaultMenuIndex(index);
    return index;
}

void frmSysTray::EnableMenuItem(std::int16_t Index, bool Enabled) {
    m_menu.setEnabled(Index, Enabled);
}

void frmSysTray::RemoveMenuItem(std::int16_t Index) {
    m_menu.remove(Index);
}

void frmSysTray::ShowMenu() {
    m_menu.markDefault(m_defaultMenuIndex);
    m_services.area.trackPopupMenu(m_window);
}

void frmSysTray::ShowBalloonTip(const QString& Message, const QString& Title, std::int32_t IconFlags,
                                double Timeout) {
    if (!m_records.isVersion5Shell())
        return;
    m_records.setBalloon(Message, Title, static_cast<std::uint32_t>(basic::CLng(Timeout)),
                         static_cast<std::uint32_t>(IconFlags));
    m_records.call(shell::kNimModify, shell::kNifInfo);
}

void frmSysTray::windowProcedure(const shell::Message& message) {
    if (message.number == shell::kMouseMove)
        Form_MouseMove(basic::fromPixels(static_cast<std::int16_t>(message.lParam & 0xFFFF)));
}

void frmSysTray::Form_MouseMove(basic::Twips X) {
    raiseEvent(static_cast<std::uint32_t>(basic::toPixels(X)));
}

// A left click is reported on its release as "down" and has no "up"; a right click has both.
void frmSysTray::raiseEvent(std::uint32_t code) {
    switch (code) {
    case shell::kMouseMove:
        Q_EMIT SysTrayMouseMove();
        break;
    case shell::kLeftButtonUp:
        Q_EMIT SysTrayMouseDown(forms::kLeftButton);
        break;
    case shell::kLeftDoubleClick:
        Q_EMIT SysTrayDoubleClick(forms::kLeftButton);
        break;
    case shell::kRightButtonDown:
        Q_EMIT SysTrayMouseDown(forms::kRightButton);
        break;
    case shell::kRightButtonUp:
        Q_EMIT SysTrayMouseUp(forms::kRightButton);
        break;
    case shell::kRightDoubleClick:
        Q_EMIT SysTrayDoubleClick(forms::kRightButton);
        break;
    case shell::kBalloonShow:
        Q_EMIT BalloonShow();
        break;
    case shell::kBalloonHide:
        Q_EMIT BalloonHide();
        break;
    case shell::kBalloonTimeOut:
        Q_EMIT BalloonTimeOut();
        break;
    case shell::kBalloonUserClick:
        Q_EMIT BalloonClicked();
        break;
    default:
        break;
    }
}

} // namespace tray
