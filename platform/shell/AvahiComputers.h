// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Finds the computers that announce an SMB service by DNS-SD, through the Avahi daemon on the system bus. A
// computer is named as its host is (nas.local), which is the name that can be looked up; the service's own
// name is the remark. Without a bus or a daemon nothing is found, and no daemon is started for it.
// User-interface thread.

#include "platform/shell/ComputerSource.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QHash>

namespace shell {

class AvahiComputers final : public ComputerSource {
    Q_OBJECT
public:
    explicit AvahiComputers(QDBusConnection bus);
    ~AvahiComputers() override;

    void start() override;

private Q_SLOTS:
    void itemNew(int interface, int protocol, const QString& name, const QString& type, const QString& domain,
                 uint flags, const QDBusMessage& message);
    void allForNow(const QDBusMessage& message);
    void failure(const QString& reason, const QDBusMessage& message);

private:
    bool isOurs(const QDBusMessage& message) const;
    void listen();
    void resolve(const QDBusMessage& item);
    void allTold();
    void endSearch();

    QDBusConnection m_bus;
    QDBusObjectPath m_browser;   // empty until the daemon has named it
    QList<QDBusMessage> m_early; // what came before that
    int m_resolving = 0;
    bool m_isAllTold = false;
    bool m_isSearched = false;
};

} // namespace shell
