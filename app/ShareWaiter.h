// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the user-interface thread waits for a server: short waits are slept through, longer ones let painting
// and the system's events go on in an event loop of their own, while the user's input stays where it is. When
// that has taken half a second, windows can be closed and the notification icon can be used; any other input
// is kept until the program waits no more. Whatever else wants to begin meanwhile (a tick, a command of the
// tray menu) comes by afterWaiting(). One wait at a time: a wait from inside a wait ends
// at once, as cancelled. User-interface thread.

#include "app/HeldInput.h"
#include "platform/mediagraph/Waiting.h"
#include "platform/share/Waiter.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>

#include <deque>
#include <functional>

namespace app {

class ShareWaiter final : public QObject, public share::Waiter, public mediagraph::Waiting {
    Q_OBJECT
public:
    // How long events may be kept waiting before they are let run.
    static constexpr std::chrono::milliseconds kPatience{50};
    // The same for the user's input: a list is loaded in less, and then everything stays in its order.
    static constexpr std::chrono::milliseconds kInputPatience{500};

    bool mayWait() const override { return !m_isEnded && !isWaiting(); }
    share::Waited untilReadable(int descriptor, std::chrono::milliseconds atMost) override;

    // A part of the wait for a message that is read and decoded, or for others in a database.
    bool pass(std::chrono::milliseconds time) override;

    bool isWaiting() const noexcept { return m_loop != nullptr; }
    // Runs `work` now, or as soon as nobody waits any more.
    void afterWaiting(std::function<void()> work);
    // The program ends: this wait and all later ones are cancelled, and what came by afterWaiting() is
    // dropped.
    void endWaits();
    bool isEnded() const noexcept { return m_isEnded; }

private:
    bool isSoonReadable(int descriptor, std::chrono::milliseconds atMost);
    share::Waited letEventsRun(int descriptor, std::chrono::milliseconds atMost);
    int exec(QEventLoop& loop);
    int execWithoutInput(QEventLoop& loop);
    int execHoldingInput(QEventLoop& loop);
    void settle();
    void runNext();

    QEventLoop* m_loop = nullptr; // of the wait that is under way
    QElapsedTimer m_sinceEvents;  // not started: nobody knows
    QElapsedTimer m_sinceInput;   // not started: nobody waits
    HeldInput m_input;
    std::deque<std::function<void()>> m_later;
    bool m_isEnded = false;
};

} // namespace app
