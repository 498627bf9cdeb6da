// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A session manager that is gone without a word, as when it crashes. The library that speaks with it would
// end the program on the spot; instead it is told once, as an event. One object at a time, on the
// user-interface thread. The library is kept from ending the program for the rest of its run, for the toolkit
// takes its leave of the manager last of all.

#include <QObject>

namespace app {

class SessionLoss : public QObject {
    Q_OBJECT
public:
    SessionLoss();
    ~SessionLoss() override;

Q_SIGNALS:
    void lost();
};

} // namespace app
