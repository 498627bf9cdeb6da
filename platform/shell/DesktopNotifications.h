// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Balloon tips through the desktop's notification service, org.freedesktop.Notifications. One balloon at a
// time, a new one replaces the last. Its ways of ending come back as codes: shown 1026, clicked 1029, timed
// out 1028, closed otherwise 1027. Nothing waits for the service. User-interface thread.

#include "platform/shell/TrayIcon.h"

#include <QDBusConnection>
#include <QObject>

namespace shell {

class DesktopNotifications : public QObject {
    Q_OBJECT
public:
    DesktopNotifications(QDBusConnection bus, TrayIcon::Listener listener);

    void show(const Balloon& balloon);

private Q_SLOTS:
    void actionInvoked(uint id, const QString& action);
    void notificationClosed(uint id, uint reason);

private:
    QDBusConnection m_bus;
    TrayIcon::Listener m_listener;
    uint m_shown = 0; // the service's number of the balloon that is up, 0 for none
};

} // namespace shell
