// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A message bus of the test's own, with as many connections as it wants. Ends with the object.

#include <QDBusConnection>
#include <QProcess>

#include <gtest/gtest.h>

#include <stdexcept>

namespace shell {

class PrivateBus {
public:
    PrivateBus() {
        m_daemon.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (!m_daemon.waitForStarted() || !m_daemon.waitForReadyRead())
            throw std::runtime_error("dbus-daemon does not start");
        m_address = QString::fromUtf8(m_daemon.readAllStandardOutput()).trimmed();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus() {
        for (const QString& name : m_names)
            QDBusConnection::disconnectFromBus(name);
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    QDBusConnection connection() {
        static int number = 0;
        m_names.append(QStringLiteral("private-%1").arg(++number));
        return QDBusConnection::connectToBus(m_address, m_names.back());
    }

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

} // namespace shell
