// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One delayed call, as an interface so that tests decide when the time is over.

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace shell {

class DelayTimer {
public:
    DelayTimer() = default;
    DelayTimer(const DelayTimer&) = delete;
    DelayTimer& operator=(const DelayTimer&) = delete;
    virtual ~DelayTimer() = default;

    // Replaces a call that is still waiting.
    virtual void start(std::chrono::milliseconds delay, std::function<void()> call) = 0;
    virtual void stop() = 0;
};

class EventLoopTimer : public DelayTimer {
public:
    void start(std::chrono::milliseconds delay, std::function<void()> call) override {
        stop();
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer); // a coarse one may be early
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, std::move(call));
        m_timer.start(delay);
    }
    void stop() override {
        m_timer.stop();
        QObject::disconnect(&m_timer, &QTimer::timeout, nullptr, nullptr);
    }

private:
    QTimer m_timer;
};

} // namespace shell
