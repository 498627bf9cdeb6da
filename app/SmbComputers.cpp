// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SmbComputers.h"

#include "platform/share/smb/ShareNames.h"

namespace app {

void SmbComputers::start() {
    m_thread = std::jthread([this] { browse(); });
}

// On the thread. What is posted to an object that has gone is dropped by the event loop.
void SmbComputers::browse() {
    share::smb::browseComputers(
        m_helperProgram, m_waiter, [this](const std::string& computer, const std::string& workgroup) {
            QMetaObject::invokeMethod(
                this,
                [this, name = QString::fromStdString(computer), remark = QString::fromStdString(workgroup)] {
                    Q_EMIT found(name, remark);
                },
                Qt::QueuedConnection);
        });
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT searched(); }, Qt::QueuedConnection);
}

} // namespace app
