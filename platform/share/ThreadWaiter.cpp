// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/share/ThreadWaiter.h"

#include "platform/basic/RuntimeError.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <array>
#include <cerrno>

namespace share {

ThreadWaiter::ThreadWaiter() : m_cancelled(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (!m_cancelled.isOpen())
        throw basic::errorFromErrno(errno, "wait", "for a server");
}

bool ThreadWaiter::mayWait() const {
    pollfd cancelled{m_cancelled.get(), POLLIN, 0};
    return ::poll(&cancelled, 1, 0) <= 0; // a signal that comes in between says nothing
}

Waited ThreadWaiter::untilReadable(int descriptor, std::chrono::milliseconds atMost) {
    std::array<pollfd, 2> watched{{{m_cancelled.get(), POLLIN, 0}, {descriptor, POLLIN, 0}}};
    const int part = static_cast<int>(partOf(atMost).count());
    for (int parts = 0; parts < kPartsOfAWait;) {
        const int count = ::poll(watched.data(), watched.size(), part);
        if (count < 0 && errno != EINTR)
            throw basic::errorFromErrno(errno, "wait", "for a server");
        if (count > 0)
            return watched[0].revents != 0 ? Waited::Cancelled : Waited::Ready;
        if (count == 0)
            ++parts;
    }
    return Waited::TimeOver;
}

void ThreadWaiter::cancel() noexcept {
    ::eventfd_write(m_cancelled.get(), 1);
}

} // namespace share
