// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// SIGTERM, SIGINT and SIGHUP as an event: the handler only writes a byte into a socket pair, the event loop
// reads it. One object at a time, for the program's whole run; the signals' former handling comes back when
// it goes.

#include <QObject>

#include <array>
#include <csignal>

class QSocketNotifier;

namespace app {

class TerminationSignals : public QObject {
    Q_OBJECT
public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    static constexpr std::array kNumbers{SIGTERM, SIGINT, SIGHUP};

    QSocketNotifier* m_notifier = nullptr; // null if the system had no sockets left: nothing is caught then
    std::array<struct sigaction, kNumbers.size()> m_former{};
};

} // namespace app
