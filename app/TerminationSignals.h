// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// SIGTERM, SIGINT and SIGHUP as an event: the handler only writes a byte into a socket pair, the event loop
// reads it. One object at a time, for the program's whole run; the signals' former handling comes back when
// it goes.

#include <QObject>

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
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace app
