// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Keeps the user's keys and clicks from a program that waits for a server, and hands them out when it waits
// no more. What the user may always use gets them at once: the notification icon, menus that are open, and a
// dialog that came up in the wait, as the report of a failure does. Windows can be closed as well, for that
// is no input. The cursor is busy meanwhile. User-interface thread.

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWindow>

#include <deque>
#include <memory>
#include <vector>

namespace app {

class HeldInput final : public QObject {
    Q_OBJECT
public:
    // From now on until stopHolding(). A long wait is one of many parts, so the cursor stays as it is until
    // that wait is over.
    void hold();
    void stopHolding();
    void waitIsOver();
    bool isEmpty() const { return m_held.empty(); }
    // The first of what is kept, to whom it was meant for, if they are still there and no dialog is before
    // them. What it leads to runs inside of the call. Not while it is empty.
    void handOutNext();

private:
    struct Held {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    bool isNewDialogUp() const;
    void showCursor();
    bool eventFilter(QObject* receiver, QEvent* event) override;

    std::deque<Held> m_held;
    std::vector<QPointer<QWindow>> m_before; // the windows that were there then
    bool m_isLongWait = false;
    bool m_isCursorBusy = false;
};

} // namespace app
