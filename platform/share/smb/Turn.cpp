// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/smb/Turn.h"

#include "platform/basic/RuntimeError.h"

#include <sys/eventfd.h>

#include <cerrno>

namespace share::smb {

TurnGate::TurnGate() : m_free(::eventfd(1, EFD_SEMAPHORE | EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (!m_free.isOpen())
        throw basic::errorFromErrno(errno, "prepare", "the connection to a server");
}

Turn::Turn(TurnGate& gate, Waiter& waiter, std::chrono::milliseconds atMost) : m_gate(gate) {
    eventfd_t taken = 0;
    while (::eventfd_read(m_gate.m_free.get(), &taken) != 0)
        if (waiter.untilReadable(m_gate.m_free.get(), atMost) != Waited::Ready)
            throw basic::RuntimeError(basic::kPathNotFound, "the server is busy with another request");
}

Turn::~Turn() {
    ::eventfd_write(m_gate.m_free.get(), 1);
}

} // namespace share::smb
