// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OutsideEvents.h"

namespace app {

void OutsideEvents::activated() const {
    m_door.run("frmMain", "Activate", [this] { m_handlers.activate(); });
}

void OutsideEvents::notificationAreaMissing() const {
    m_door.run("frmMain", "NotificationAreaMissing", [this] { m_handlers.notificationAreaMissing(); });
}

void OutsideEvents::notificationAreaReturned() const {
    m_door.run("frmMain", "NotificationAreaReturned", [this] { m_handlers.notificationAreaReturned(); });
}

void OutsideEvents::sessionEnds() const {
    m_door.run("frmMain", "EndSession", [this] { m_handlers.endSession(); });
}

} // namespace app
