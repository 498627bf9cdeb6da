// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Timer.h"

#include "platform/forms/Events.h"

#include <QEventLoop>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(Timer, IsMadeEnabledWithoutAnInterval) {
    Timer timer;
    const QSignalSpy ticks(&timer, &Timer::ThatTime);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(timer.Interval(), 0);
    EXPECT_FALSE(timer.isTicking());
}

TEST(Timer, TicksOnceAnIntervalIsSet) {
    Timer timer;
    QSignalSpy ticks(&timer, &Timer::ThatTime);
    timer.SetInterval(1);
    EXPECT_TRUE(timer.isTicking());
    EXPECT_TRUE(ticks.wait());
}

TEST(Timer, StopsWithoutAnIntervalOrWhenItIsNotEnabled) {
    Timer timer;
    const QSignalSpy ticks(&timer, &Timer::ThatTime);
    timer.SetInterval(600000);
    timer.SetInterval(0);
    EXPECT_FALSE(timer.isTicking());
    timer.SetInterval(-5);
    EXPECT_FALSE(timer.isTicking());
    timer.SetInterval(600000);
    timer.SetEnabled(false);
    EXPECT_FALSE(timer.isTicking());
    timer.SetInterval(200);
    EXPECT_FALSE(timer.isTicking());
    timer.SetEnabled(true);
    EXPECT_TRUE(timer.isTicking());
    EXPECT_EQ(timer.Interval(), 200);
}

TEST(Timer, DoesNotWakeTheProcessWhileNobodyHandlesIt) {
    Timer timer;
    timer.SetInterval(25);
    EXPECT_FALSE(timer.isTicking());
    const QMetaObject::Connection handler = QObject::connect(&timer, &Timer::ThatTime, [] {});
    EXPECT_TRUE(timer.isTicking());
    QObject::disconnect(handler);
    doEvents();
    EXPECT_FALSE(timer.isTicking());
}

TEST(Timer, DoesNotWakeTheProcessWhileItsOwnerHasNothingToDo) {
    Timer timer;
    QSignalSpy ticks(&timer, &Timer::ThatTime);
    timer.SetResting(true);
    timer.SetInterval(1);
    EXPECT_FALSE(timer.isTicking());
    EXPECT_EQ(timer.Interval(), 1);
    EXPECT_TRUE(timer.Enabled());
    timer.SetResting(false);
    EXPECT_TRUE(timer.isTicking());
    EXPECT_TRUE(ticks.wait());
    timer.SetResting(true);
    EXPECT_FALSE(timer.isTicking());
    timer.SetEnabled(false);
    timer.SetResting(false);
    EXPECT_FALSE(timer.isTicking());
}

TEST(Timer, StopsOnceTheObjectThatHandledItIsGone) {
    Timer timer;
    auto handler = std::make_unique<QObject>();
    QObject::connect(&timer, &Timer::ThatTime, handler.get(), [] {});
    timer.SetInterval(1);
    handler.reset();
    while (timer.isTicking())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_FALSE(timer.isTicking());
    QObject::connect(&timer, &Timer::ThatTime, [] {});
    EXPECT_TRUE(timer.isTicking());
}

TEST(Timer, ATickThatFallsDueWhileOneIsHandledIsDropped) {
    Timer timer;
    int handled = 0;
    int nested = 0;
    bool inHandler = false;
    QObject::connect(&timer, &Timer::ThatTime, [&] {
        nested += inHandler ? 1 : 0;
        inHandler = true;
        ++handled;
        timer.SetInterval(1); // what the toolkit would let overlap
        int others = 0;
        QTimer other;
        QObject::connect(&other, &QTimer::timeout, [&] { ++others; });
        other.start(5);
        while (others < 3)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        inHandler = false;
    });
    timer.SetInterval(1);
    while (handled < 2)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(nested, 0);
}

TEST(Timer, MayGoWhileItTicks) {
    auto timer = std::make_unique<Timer>();
    QObject::connect(timer.get(), &Timer::ThatTime, [&] { timer.reset(); });
    timer->SetInterval(1);
    while (timer)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(timer, nullptr);
}

TEST(Timer, ATickThatIsHandledLastStillStopsWhenDisabledByItsHandler) {
    Timer timer;
    int handled = 0;
    QObject::connect(&timer, &Timer::ThatTime, [&] {
        ++handled;
        timer.SetEnabled(false);
    });
    timer.SetInterval(1);
    while (handled == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_FALSE(timer.isTicking());
}

TEST(Events, WhatIsPendingRunsAndNothingIsWaitedFor) {
    bool ran = false;
    QMetaObject::invokeMethod(
        qApp, [&] { ran = true; }, Qt::QueuedConnection);
    doEvents();
    EXPECT_TRUE(ran);
}

} // namespace
} // namespace forms
