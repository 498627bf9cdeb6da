// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One way to find computers on the network. Made for one showing of the network browser, which lets it go
// when it closes, whatever is under way. What it says comes from the network: names are to be looked at
// before they are used. User-interface thread.

#include <QObject>
#include <QString>

namespace shell {

class ComputerSource : public QObject {
    Q_OBJECT
public:
    // Once. Never blocks.
    virtual void start() = 0;

Q_SIGNALS:
    // `remark` says more about the computer and may be empty. A computer can be found more than once.
    void found(const QString& name, const QString& remark);
    // What was there when it started has been told; more may follow. Once, also where there is nothing.
    void searched();
};

} // namespace shell
