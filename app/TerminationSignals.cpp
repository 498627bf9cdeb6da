// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <utility>

namespace app {
namespace {

// A signal handler reaches nothing but what is global: the writing end, then the reading end.
std::array<int, 2> g_sockets{-1, -1}; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

extern "C" void noteSignal(int) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(g_sockets[0], &byte, 1);
    errno = before;
}

struct sigaction noting() {
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    return action;
}

} // namespace

TerminationSignals::TerminationSignals() {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, g_sockets.data()) != 0)
        return;
    m_notifier = new QSocketNotifier(g_sockets[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(g_sockets[1], &byte, 1) == 1)
            Q_EMIT received();
    });
    const struct sigaction action = noting();
    for (std::size_t i = 0; i < kNumbers.size(); ++i) {
        ::sigaction(kNumbers[i], nullptr, &m_former[i]);
        // What was ignored when the program was started, as by nohup, stays so.
        if (m_former[i].sa_handler != SIG_IGN)
            ::sigaction(kNumbers[i], &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    if (m_notifier == nullptr)
        return;
    for (std::size_t i = 0; i < kNumbers.size(); ++i)
        ::sigaction(kNumbers[i], &m_former[i], nullptr);
    m_notifier->setEnabled(false);
    for (int& socket : g_sockets)
        ::close(std::exchange(socket, -1));
}

} // namespace app
