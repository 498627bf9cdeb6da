// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace app {
namespace {

const QString kService = QStringLiteral("example.corvantis.qmClient");
const QString kPath = QStringLiteral("/example/corvantis/qmClient");
constexpr int kPatienceMs = 3000;

// Whether the name's owner is there and says that it has shown itself.
bool runningOneAnswers(const QDBusConnection& bus) {
    const auto activate =
        QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Activate"));
    return bus.call(activate, QDBus::Block, kPatienceMs).type() == QDBusMessage::ReplyMessage;
}

} // namespace

bool SingleInstance::claim() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return true;
    bus.registerObject(kPath, this, QDBusConnection::ExportScriptableSlots);
    if (bus.registerService(kService))
        return true;
    if (runningOneAnswers(bus))
        return false;
    // It went away meanwhile, or hangs. A user who starts the program shall get one.
    bus.registerService(kService);
    return true;
}

} // namespace app
