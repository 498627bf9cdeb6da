// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Keeps the user's keys and clicks from a program that waits for a server, and hands them out when it waits
// no more. What the user may always use gets them at once: the notification icon, menus that are open, and a
// dialog that came up in the wait, as the report of a failure does. Windows can be closed as well, for that
// is no input. User-interface thread.

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWindow>

#include <memory>
#include <vector>

namespace app {

class HeldInput final : public QObject {
    Q_OBJECT
public:
    // From now on until stopHolding().
    void hold();
    void stopHolding();
    // To whom it was meant for, from the event loop, as far as they are still there and no dialog is before
    // them.
    void handOut();

private:
    struct Held {
        QPointer<QObject> receiver;
        std::unique_ptr<QEvent> event;
    };

    bool isOfNewDialog(QObject& receiver) const;
    bool eventFilter(QObject* receiver, QEvent* event) override;

    std::vector<Held> m_held;
    std::vector<QPointer<QWindow>> m_before; // the windows that were there then
};

} // namespace app
