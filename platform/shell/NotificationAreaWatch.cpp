// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/NotificationAreaWatch.h"

#include <utility>

namespace shell {

NotificationAreaWatch::NotificationAreaWatch(const TrayHosts& hosts, DelayTimer& timer)
    : m_hosts(hosts), m_timer(timer) {
    connect(&hosts, &TrayHosts::changed, this, &NotificationAreaWatch::hostsChanged);
    hostsChanged();
}

NotificationAreaWatch::~NotificationAreaWatch() {
    m_timer.stop();
}

void NotificationAreaWatch::hostsChanged() {
    if (m_hosts.kind() != TrayHostKind::None) {
        m_timer.stop();
        m_isWaiting = false;
        if (std::exchange(m_isMissing, false))
            Q_EMIT returned();
        return;
    }
    if (m_isWaiting || m_isMissing)
        return;
    m_isWaiting = true;
    m_timer.start(kPatience, [this] {
        m_isWaiting = false;
        m_isMissing = true;
        Q_EMIT missing();
    });
}

} // namespace shell
