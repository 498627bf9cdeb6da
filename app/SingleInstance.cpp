// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace app {
namespace {

const QString kService = QStringLiteral("example.corvantis.qmClient");
const QString kPath = QStringLiteral("/example/corvantis/qmClient");

} // namespace

bool SingleInstance::claim() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return true;
    bus.registerObject(kPath, this, QDBusConnection::ExportScriptableSlots);
    if (bus.registerService(kService))
        return true;
    bus.call(QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Activate")));
    return false;
}

} // namespace app
