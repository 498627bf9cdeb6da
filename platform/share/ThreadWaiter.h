// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Waits by sleeping. cancel() ends the wait at once, and every later one; it may be called from any thread.

#include "platform/share/FileDescriptor.h"
#include "platform/share/Waiter.h"

namespace share {

class ThreadWaiter final : public Waiter {
public:
    ThreadWaiter();

    bool mayWait() const override;
    Waited untilReadable(int descriptor, std::chrono::milliseconds atMost) override;
    void cancel() noexcept;

private:
    FileDescriptor m_cancelled; // readable from cancel() on
};

} // namespace share
