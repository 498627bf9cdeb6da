// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Which kind of notification area the desktop offers right now, and word of every change. Panels come, go and
// restart at any time, also long after the program. User-interface thread.

#include <QObject>

namespace shell {

enum class TrayHostKind {
    None,           // nobody would show an icon
    StatusNotifier, // a StatusNotifier host is registered with the watcher on the session bus
    Embedding,      // a window owns the X selection _NET_SYSTEM_TRAY_S<n>
};

class TrayHosts : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    virtual TrayHostKind kind() const = 0;

Q_SIGNALS:
    // Also raised when one host of a kind was replaced by another: an icon must be handed over anew.
    void changed();
};

} // namespace shell
