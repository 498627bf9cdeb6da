// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/DesktopNotifications.h"

#include "platform/shell/NotifyIconData.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QVariantMap>

#include <algorithm>
#include <limits>
#include <utility>

namespace shell {
namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
constexpr uint kExpired = 1;

QString themeIcon(std::uint32_t iconFlags) {
    switch (iconFlags & 0xF) {
    case 1:
        return QStringLiteral("dialog-information");
    case 2:
        return QStringLiteral("dialog-warning");
    case 3:
        return QStringLiteral("dialog-error");
    default:
        return {};
    }
}

} // namespace

DesktopNotifications::DesktopNotifications(QDBusConnection bus, TrayIcon::Listener listener)
    : m_bus(std::move(bus)), m_listener(std::move(listener)) {
    m_bus.connect(kService, kPath, kService, QStringLiteral("ActionInvoked"), this,
                  SLOT(actionInvoked(uint, QString)));
    m_bus.connect(kService, kPath, kService, QStringLiteral("NotificationClosed"), this,
                  SLOT(notificationClosed(uint, uint)));
}

void DesktopNotifications::show(const Balloon& balloon) {
    const std::uint32_t longest = std::numeric_limits<int>::max();
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Notify"));
    call << QGuiApplication::applicationDisplayName() << m_shown << themeIcon(balloon.iconFlags)
         << balloon.title << balloon.text.toHtmlEscaped() << QStringList{QStringLiteral("default"), QString()}
         << QVariantMap() << static_cast<int>(std::min(balloon.timeoutMilliseconds, longest));
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<uint> reply = *watcher;
        if (reply.isError())
            return;
        m_shown = reply.value();
        m_listener(kBalloonShow);
    });
}

void DesktopNotifications::actionInvoked(uint id, const QString&) {
    if (id == 0 || id != m_shown)
        return;
    m_shown = 0;
    m_listener(kBalloonUserClick);
}

void DesktopNotifications::notificationClosed(uint id, uint reason) {
    if (id == 0 || id != m_shown)
        return;
    m_shown = 0;
    m_listener(reason == kExpired ? kBalloonTimeOut : kBalloonHide);
}

} // namespace shell
