// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The application object with a net below all traps and doors: what an event's handler throws past them is
// reported as Application's notify and goes no further, for an exception that reaches the toolkit's event
// loop ends the program. The event cannot be sent a second time, as its receiver may be gone: whatever is
// answered, the program goes on with the next one.
//
// The toolkit does not end the program: a session manager that wants its clients to go is only passed on.

#include "errors/ErrorHandler.h"

#include <QApplication>

namespace app {

class Application : public QApplication {
    Q_OBJECT
public:
    Application(int& argc, char** argv) : QApplication(argc, argv) {}

    // From now on; null before the handler goes. User-interface thread.
    void reportTo(errors::ErrorHandler* errorHandler) { m_errorHandler = errorHandler; }

    bool notify(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    // The session ends, now for certain: what it asked for before, to save, may have been a mere checkpoint
    // or for a log-out that was cancelled.
    void askedToQuit();

protected:
    bool event(QEvent* event) override;

private:
    errors::ErrorHandler* m_errorHandler = nullptr;
};

} // namespace app
