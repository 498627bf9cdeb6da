// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/WindowTable.h"

#include <utility>

namespace shell {

WindowHandle WindowTable::add(Procedure procedure) {
    m_procedures.emplace(++m_last, std::move(procedure));
    return m_last;
}

void WindowTable::remove(WindowHandle window) {
    m_procedures.erase(window);
}

bool WindowTable::contains(WindowHandle window) const {
    return m_procedures.contains(window);
}

void WindowTable::post(WindowHandle window, const Message& message) {
    QMetaObject::invokeMethod(
        &m_queue, [this, window, message] { deliver(window, message); }, Qt::QueuedConnection);
}

void WindowTable::deliver(WindowHandle window, const Message& message) {
    const auto found = m_procedures.find(window);
    if (found == m_procedures.end())
        return;
    const Procedure procedure = found->second; // the window may be destroyed by its own procedure
    procedure(message);
}

} // namespace shell
