// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/StatusNotifierWatch.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace shell {
namespace {

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");
constexpr int kTimeoutMilliseconds = 2000;

} // namespace

StatusNotifierWatch::StatusNotifierWatch(QDBusConnection bus)
    : m_bus(std::move(bus)), m_owner(kWatcher, m_bus, QDBusServiceWatcher::WatchForOwnerChange) {
    if (!m_bus.isConnected()) {
        m_isSettled = true;
        return;
    }
    connect(&m_owner, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) { watcherChanged(newOwner); });
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(kWatcher, kWatcherPath, kWatcher, QString::fromLatin1(signal), this, SLOT(ask()));
    ask();
}

void StatusNotifierWatch::watcherChanged(const QString& newOwner) {
    ++m_question;
    answer(false);
    if (!newOwner.isEmpty())
        ask();
}

void StatusNotifierWatch::ask() {
    QDBusMessage call = QDBusMessage::createMethodCall(
        kWatcher, kWatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call.setAutoStartService(false);
    call << kWatcher << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call, kTimeoutMilliseconds), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, question = ++m_question] {
        reply->deleteLater();
        const QDBusPendingReply<QDBusVariant> result = *reply;
        if (question == m_question)
            answer(result.isValid() && result.value().variant().toBool());
    });
}

void StatusNotifierWatch::answer(bool isHostRegistered) {
    if (m_isSettled && isHostRegistered == m_isHostRegistered)
        return;
    m_isSettled = true;
    m_isHostRegistered = isHostRegistered;
    Q_EMIT changed();
}

} // namespace shell
