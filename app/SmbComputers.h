// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Finds computers by the network's own browsing, in a qmshare process of its own, on a thread of its own.
// Letting it go ends both at once. User-interface thread.

#include "platform/share/ThreadWaiter.h"
#include "platform/shell/ComputerSource.h"

#include <string>
#include <thread>

namespace app {

class SmbComputers final : public shell::ComputerSource {
    Q_OBJECT
public:
    explicit SmbComputers(std::string helperProgram) : m_helperProgram(std::move(helperProgram)) {}
    ~SmbComputers() override { m_waiter.cancel(); }

    void start() override;

private:
    void browse();

    const std::string m_helperProgram;
    share::ThreadWaiter m_waiter; // the thread's
    std::jthread m_thread;        // last: what it uses must outlive it
};

} // namespace app
