// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The timer object of the component library: ticks every Interval milliseconds while it is enabled. It is
// made enabled and without an interval, so it begins to tick when one is set. A tick never overlaps itself:
// what falls due while a handler runs is dropped. While nobody handles ThatTime, or while its owner has
// nothing to do with a tick, nothing wakes the process. User-interface thread.

#include <QObject>
#include <QTimer>

#include <cstdint>

namespace forms {

class Timer : public QObject {
    Q_OBJECT
public:
    explicit Timer(QObject* parent = nullptr);

    bool Enabled() const noexcept { return m_enabled; }
    void SetEnabled(bool enabled);
    std::int32_t Interval() const noexcept { return m_interval; }
    // 0 or less stops it. Setting an interval begins a new one, also if it is the same.
    void SetInterval(std::int32_t milliseconds);

    // The owner's word that a tick would find nothing to do, for as long as that is so. Interval and Enabled
    // stay as they are.
    bool Resting() const noexcept { return m_resting; }
    void SetResting(bool resting);

    // Whether the process will be woken.
    bool isTicking() const { return m_timer.isActive(); }

Q_SIGNALS:
    void ThatTime();

protected:
    void connectNotify(const QMetaMethod& signal) override;
    void disconnectNotify(const QMetaMethod& signal) override;

private:
    bool isHandled() const;
    void restart();
    void followHandlers();
    void tick();

    QTimer m_timer;
    std::int32_t m_interval = 0;
    bool m_enabled = true;
    bool m_resting = false;
    bool m_inTick = false;
};

} // namespace forms
