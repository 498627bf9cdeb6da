// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Events that come from outside of the program's windows: a second start, a notification area that is missing
// or comes back, the end of the session. Their handlers have no trap of their own, so each runs behind the
// event loop's door. What it is given must outlive it; user-interface thread.

#include "errors/EventDoor.h"

#include <functional>
#include <utility>

namespace app {

class OutsideEvents {
public:
    struct Handlers {
        std::function<void()> activate;
        std::function<void()> notificationAreaMissing;
        std::function<void()> notificationAreaReturned;
        std::function<void()> endSession;
    };

    OutsideEvents(errors::ErrorHandler& errorHandler, Handlers handlers)
        : m_door(errorHandler), m_handlers(std::move(handlers)) {}

    void activated() const;
    void notificationAreaMissing() const;
    void notificationAreaReturned() const;
    void sessionEnds() const;

private:
    errors::EventDoor m_door;
    Handlers m_handlers;
};

} // namespace app
