// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Runs on a session bus of its own. Who else owns the program's name is a second connection to it.
#include "app/SingleInstance.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>

namespace app {
namespace {

const QString kService = QStringLiteral("example.corvantis.qmClient");
const QString kPath = QStringLiteral("/example/corvantis/qmClient");

class SingleInstanceTest : public testing::Test {
protected:
    SingleInstanceTest() : other(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"other"_qs)) {}
    ~SingleInstanceTest() override {
        QDBusConnection::sessionBus().unregisterService(kService);
        QDBusConnection::sessionBus().unregisterObject(kPath);
        other.unregisterService(kService);
        QDBusConnection::disconnectFromBus(u"other"_qs);
    }
    QString owner() const {
        const QDBusReply<QString> reply = other.interface()->serviceOwner(kService);
        return reply.isValid() ? reply.value() : QString();
    }

    QDBusConnection other;
    SingleInstance instance;
};

TEST_F(SingleInstanceTest, FirstStartOwnsTheName) {
    ASSERT_TRUE(other.isConnected());
    EXPECT_TRUE(instance.claim());
    EXPECT_EQ(owner(), QDBusConnection::sessionBus().baseService());
}

TEST_F(SingleInstanceTest, LaterStartAsksTheRunningOneToShowItself) {
    QThread thread;
    SingleInstance running;
    QSignalSpy activated(&running, &SingleInstance::activated);
    running.moveToThread(&thread);
    thread.start();
    other.registerObject(kPath, &running, QDBusConnection::ExportScriptableSlots);
    ASSERT_TRUE(other.registerService(kService));
    EXPECT_FALSE(instance.claim());
    thread.quit();
    thread.wait();
    EXPECT_EQ(activated.count(), 1);
}

TEST_F(SingleInstanceTest, OwnerThatDoesNotKnowTheCallDoesNotKeepTheProgramFromStarting) {
    ASSERT_TRUE(other.registerService(kService));
    EXPECT_TRUE(instance.claim());
}

TEST_F(SingleInstanceTest, OwnerThatHangsDoesNotKeepTheProgramFromStarting) {
    SingleInstance hanging; // its thread waits for the call that it should answer
    other.registerObject(kPath, &hanging, QDBusConnection::ExportScriptableSlots);
    ASSERT_TRUE(other.registerService(kService));
    EXPECT_TRUE(instance.claim());
}

} // namespace
} // namespace app
