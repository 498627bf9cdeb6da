// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Timer.h"

#include <QMetaMethod>
#include <QPointer>
#include <QScopeGuard>

namespace forms {

Timer::Timer(QObject* parent) : QObject(parent) {
    connect(&m_timer, &QTimer::timeout, this, &Timer::tick);
}

void Timer::SetEnabled(bool enabled) {
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    restart();
}

void Timer::SetInterval(std::int32_t milliseconds) {
    m_interval = milliseconds;
    restart();
}

void Timer::SetResting(bool resting) {
    if (resting == m_resting)
        return;
    m_resting = resting;
    restart();
}

void Timer::connectNotify(const QMetaMethod&) {
    followHandlers();
}

// The toolkit calls this with its connections locked, so the look at them waits for the event loop.
void Timer::disconnectNotify(const QMetaMethod&) {
    QMetaObject::invokeMethod(this, &Timer::followHandlers, Qt::QueuedConnection);
}

bool Timer::isHandled() const {
    static const QMetaMethod signal = QMetaMethod::fromSignal(&Timer::ThatTime);
    return isSignalConnected(signal);
}

void Timer::restart() {
    if (m_enabled && !m_resting && m_interval > 0 && isHandled())
        m_timer.start(m_interval);
    else
        m_timer.stop();
}

// A second handler must not put off the tick that the first one waits for.
void Timer::followHandlers() {
    if (m_timer.isActive() != isHandled())
        restart();
}

void Timer::tick() {
    if (m_inTick)
        return;
    // A handler whose object was destroyed went without a notice.
    if (!isHandled()) {
        m_timer.stop();
        return;
    }
    m_inTick = true;
    const auto end = qScopeGuard([alive = QPointer(this)] {
        if (alive)
            alive->m_inTick = false;
    });
    Q_EMIT ThatTime();
}

} // namespace forms
