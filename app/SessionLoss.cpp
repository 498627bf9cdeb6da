// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SessionLoss.h"

#include <X11/ICE/ICElib.h>

#include <utility>

namespace app {
namespace {

// All that the library's handler reaches. Null once the loss was told: the toolkit goes on reading.
SessionLoss* g_listener = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

extern "C" void noteLoss(IceConn) {
    if (auto* listener = std::exchange(g_listener, nullptr))
        QMetaObject::invokeMethod(listener, &SessionLoss::lost, Qt::QueuedConnection);
}

} // namespace

SessionLoss::SessionLoss() {
    g_listener = this;
    ::IceSetIOErrorHandler(noteLoss);
}

SessionLoss::~SessionLoss() {
    g_listener = nullptr;
}

} // namespace app
