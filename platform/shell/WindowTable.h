// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The windows that the shell can send messages to: a handle for every window procedure. post() only queues;
// the procedure runs from the event loop, and a message whose window is gone by then is dropped. Handles are
// never 0 and are not given out twice. User-interface thread; it must outlive whoever posts through it.

#include "platform/shell/NotifyIconData.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <map>

namespace shell {

struct Message {
    std::uint32_t number = 0;
    std::uint32_t wParam = 0;
    std::uint32_t lParam = 0;
};

class WindowTable {
public:
    using Procedure = std::function<void(const Message&)>;

    WindowHandle add(Procedure procedure);
    void remove(WindowHandle window);
    bool contains(WindowHandle window) const;
    void post(WindowHandle window, const Message& message);

private:
    void deliver(WindowHandle window, const Message& message);

    std::map<WindowHandle, Procedure> m_procedures;
    WindowHandle m_last = 0x10000; // above every number that could be mistaken for a message or a flag
    QObject m_queue;               // its queued calls die with the table
};

} // namespace shell
