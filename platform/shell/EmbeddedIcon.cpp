// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/EmbeddedIcon.h"

#include "platform/shell/NotifyIconData.h"

#include <QCursor>
#include <QMenu>

#include <algorithm>
#include <limits>
#include <utility>

namespace shell {
namespace {

QSystemTrayIcon::MessageIcon messageIcon(std::uint32_t iconFlags) {
    switch (iconFlags & 0xF) {
    case 1:
        return QSystemTrayIcon::Information;
    case 2:
        return QSystemTrayIcon::Warning;
    case 3:
        return QSystemTrayIcon::Critical;
    default:
        return QSystemTrayIcon::NoIcon;
    }
}

} // namespace

EmbeddedIcon::EmbeddedIcon(const TrayIconFace& face, Listener listener)
    : m_listener(std::move(listener)), m_menu(face.menu) {
    QObject::connect(&m_icon, &QSystemTrayIcon::activated, &m_icon,
                     [this](QSystemTrayIcon::ActivationReason reason) { activated(reason); });
    QObject::connect(&m_icon, &QSystemTrayIcon::messageClicked, &m_icon,
                     [this] { m_listener(kBalloonUserClick); });
    m_icon.setToolTip(face.tip);
    setIcon(face.icon);
}

void EmbeddedIcon::setIcon(const QIcon& icon) {
    m_icon.setIcon(icon);
    m_icon.setVisible(!icon.isNull());
}

void EmbeddedIcon::setTip(const QString& tip) {
    m_icon.setToolTip(tip);
}

void EmbeddedIcon::setMenu(QMenu* menu) {
    m_menu = menu;
}

void EmbeddedIcon::showBalloon(const Balloon& balloon) {
    const std::uint32_t longest = std::numeric_limits<int>::max();
    m_icon.showMessage(balloon.title, balloon.text, messageIcon(balloon.iconFlags),
                       static_cast<int>(std::min(balloon.timeoutMilliseconds, longest)));
    m_listener(kBalloonShow);
}

void EmbeddedIcon::popUpMenu() {
    if (m_menu)
        m_menu->popup(QCursor::pos());
}

void EmbeddedIcon::activated(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
    case QSystemTrayIcon::Trigger:
        m_listener(kLeftButtonDown);
        m_listener(kLeftButtonUp);
        break;
    case QSystemTrayIcon::DoubleClick:
        m_listener(kLeftDoubleClick);
        m_listener(kLeftButtonUp);
        break;
    case QSystemTrayIcon::Context:
        m_listener(kRightButtonDown);
        m_listener(kRightButtonUp);
        break;
    default:
        break;
    }
}

} // namespace shell
