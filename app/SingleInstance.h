// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One running program per user, over the session bus: the first one owns the well-known name, a later one
// asks it to show itself and ends. Where there is no bus, or an owner that does not answer within seconds, a
// start counts as the first one. User-interface thread.

#include <QObject>

namespace app {

class SingleInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.corvantis.qmClient")
public:
    // True when this program is the first one; otherwise the running one was asked to show itself.
    bool claim();

public Q_SLOTS:
    // Called over the bus.
    Q_SCRIPTABLE void Activate() { Q_EMIT activated(); }

Q_SIGNALS:
    void activated();
};

} // namespace app
