// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the event loop enters handlers that have no error trap of their own. Whatever such a handler throws
// is reported once under the handler's names and goes no further, for an exception that reached the event
// loop would end the program. Retry runs the whole handler again, every other answer ends it.
//
//     door.run("frmSysTray", "mnuSysTray_Click", [&] { Q_EMIT MenuClick(index, key); });
//
// User-interface thread; the error handler must outlive the door.

#include "errors/Procedure.h"

#include <string_view>
#include <utility>

namespace errors {

class EventDoor {
public:
    explicit EventDoor(ErrorHandler& handler) : m_handler(handler) {}

    template <typename Handler>
    void run(std::string_view module, std::string_view procedure, Handler&& handler,
             SourceLine line = SourceLine::here()) const {
        Procedure proc(m_handler, module, procedure);
        proc.step(std::forward<Handler>(handler), line);
    }

private:
    ErrorHandler& m_handler;
};

} // namespace errors
