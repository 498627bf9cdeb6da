// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace app {
namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler reaches nothing but what is global: the writing end, then the reading end.
std::array<int, 2> g_sockets{-1, -1}; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

extern "C" void noteSignal(int) {
    const int before = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(g_sockets[0], &byte, 1);
    errno = before;
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
    for (const int number : kSignals) {
        struct sigaction action = {};
        action.sa_handler = noteSignal;
        action.sa_flags = SA_RESTART;
        ::sigaction(number, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    for (const int number : kSignals)
        std::signal(number, SIG_DFL);
    m_notifier->setEnabled(false);
    for (int& socket : g_sockets) {
        if (socket >= 0)
            ::close(socket);
        socket = -1;
    }
}

} // namespace app
