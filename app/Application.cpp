// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "errors/Failure.h"

#include <QEvent>
#include <QThread>

#include <exception>

namespace app {

// Other threads' events pass here, too; those threads have traps of their own.
bool Application::notify(QObject* receiver, QEvent* event) {
    if (m_errorHandler == nullptr || QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        const errors::Failure failure = errors::describe(std::current_exception());
        m_errorHandler->ReportError("Application", "notify", failure.number, failure.description, 0);
    }
    return false;
}

bool Application::event(QEvent* event) {
    if (event->type() != QEvent::Quit)
        return QApplication::event(event);
    Q_EMIT askedToQuit();
    return true;
}

} // namespace app
