// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Tells when the desktop has had no notification area for a while, so that the program can show itself
// another way. missing() comes once per absence and returned() ends it; an area that appears in time, or one
// that only restarts, is no absence. Nothing wakes up in between but the one timer. User-interface thread;
// hosts and timer must outlive it.

#include "platform/shell/DelayTimer.h"
#include "platform/shell/TrayHosts.h"

#include <QObject>

#include <chrono>

namespace shell {

class NotificationAreaWatch : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds kPatience = std::chrono::seconds(15);

    NotificationAreaWatch(const TrayHosts& hosts, DelayTimer& timer);
    ~NotificationAreaWatch() override;

    bool isMissing() const { return m_isMissing; }

Q_SIGNALS:
    void missing();
    void returned();

private:
    void hostsChanged();

    const TrayHosts& m_hosts;
    DelayTimer& m_timer;
    bool m_isWaiting = false;
    bool m_isMissing = false;
};

} // namespace shell
