// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The part of the Avahi daemon's interface that is used, on a bus of the test's own: announces what the test
// says, when it says so.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QHash>

#include <functional>

namespace shell {

class StubAvahi : public QDBusVirtualObject {
    Q_OBJECT
public:
    static constexpr const char* kOurBrowser = "/Client1/ServiceBrowser1";

    explicit StubAvahi(const QDBusConnection& bus) : m_bus(bus) {
        qDBusRegisterMetaType<QList<QByteArray>>();
        m_bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        m_bus.registerService(QStringLiteral("org.freedesktop.Avahi"));
    }

    void announce(const QString& name, const QString& path = QString::fromLatin1(kOurBrowser)) {
        send(path, QStringLiteral("ItemNew"),
             {1, 0, name, QStringLiteral("_smb._tcp"), QStringLiteral("local"), 0U});
    }
    void tellAllForNow() { send(QString::fromLatin1(kOurBrowser), QStringLiteral("AllForNow"), {}); }
    void fail() { send(QString::fromLatin1(kOurBrowser), QStringLiteral("Failure"), {QStringLiteral("no")}); }

    // As a daemon that ends.
    void leave() { m_bus.unregisterService(QStringLiteral("org.freedesktop.Avahi")); }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() == QStringLiteral("ServiceBrowserNew")) {
            browsed = message.arguments();
            beforeReply();
            bus.send(
                message.createReply(QVariant::fromValue(QDBusObjectPath(QString::fromLatin1(kOurBrowser)))));
            afterReply();
            return true;
        }
        if (message.member() == QStringLiteral("ResolveService"))
            return resolve(message, bus);
        freed += message.member() == QStringLiteral("Free") ? 1 : 0;
        return true;
    }
    QString introspect(const QString&) const override { return {}; }

    QHash<QString, QString> hosts; // by the service's name; others cannot be resolved
    std::function<void()> beforeReply = [] {};
    std::function<void()> afterReply = [] {};
    QVariantList browsed;
    int freed = 0;

private:
    bool resolve(const QDBusMessage& message, const QDBusConnection& bus) {
        const QVariantList asked = message.arguments();
        const QString host = hosts.value(asked[2].toString());
        if (host.isEmpty())
            return bus.send(message.createErrorReply(QStringLiteral("org.freedesktop.Avahi.TimeoutError"),
                                                     QStringLiteral("Timeout reached")));
        return bus.send(message.createReply({asked[0], asked[1], asked[2], asked[3], asked[4], host, 0,
                                             QStringLiteral("192.0.2.1"), QVariant::fromValue<ushort>(445),
                                             QVariant::fromValue(QList<QByteArray>()), 0U}));
    }
    void send(const QString& path, const QString& member, const QVariantList& arguments) {
        QDBusMessage signal =
            QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.Avahi.ServiceBrowser"), member);
        signal.setArguments(arguments);
        m_bus.send(signal);
    }

    QDBusConnection m_bus;
};

} // namespace shell
