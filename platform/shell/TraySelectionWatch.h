// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whether an XEmbed tray runs: the X selection _NET_SYSTEM_TRAY_S<n> has an owner. A tray that starts sends a
// MANAGER message to the root window, one that ends destroys its window; both are events on a connection of
// its own, so that Qt's event masks stay untouched and nothing is ever polled. Off X11 there is no tray.
// User-interface thread.

#include "platform/shell/XcbConnection.h"

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace shell {

class TraySelectionWatch : public QObject {
    Q_OBJECT
public:
    TraySelectionWatch();
    ~TraySelectionWatch() override;

    bool hasOwner() const { return m_owner != XCB_WINDOW_NONE; }

Q_SIGNALS:
    // Also raised when one tray replaced another.
    void changed();

private:
    bool connectToServer();
    void readOwner();
    bool isOwnerOutdated();
    void readEvents();

    XcbConnectionPointer m_connection;
    const xcb_screen_t* m_screen = nullptr; // the connection's
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    xcb_atom_t m_manager = XCB_ATOM_NONE;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace shell
