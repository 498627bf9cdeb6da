// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Makes several threads talk to one server one after the other. Held from construction to destruction;
// waiting for it is a wait like any other, so that the window lives on. Not to be taken twice by one thread.

#include "platform/share/FileDescriptor.h"
#include "platform/share/Waiter.h"

namespace share::smb {

// What the turns are taken of: one for each server.
class TurnGate {
public:
    TurnGate();

private:
    friend class Turn;
    FileDescriptor m_free; // readable while nobody has the turn
};

class Turn {
public:
    // Error 76 when nobody gives the turn back within `atMost` or the wait is cancelled.
    Turn(TurnGate& gate, Waiter& waiter, std::chrono::milliseconds atMost);
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn();

private:
    TurnGate& m_gate;
};

} // namespace share::smb
