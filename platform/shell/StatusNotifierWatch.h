// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Whether a StatusNotifier host is registered on the session bus, kept up to date by the bus's own signals. A
// watcher whose name is owned but which has no host yet counts as none. Asking never blocks; a watcher that
// does not answer within two seconds counts as none. User-interface thread.

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace shell {

class StatusNotifierWatch : public QObject {
    Q_OBJECT
public:
    explicit StatusNotifierWatch(QDBusConnection bus);

    bool isHostRegistered() const { return m_isHostRegistered; }
    // False until the first answer is there; a choice made before would be a guess.
    bool isSettled() const { return m_isSettled; }

Q_SIGNALS:
    // Also raised when the watcher was replaced: items have to register anew.
    void changed();

private Q_SLOTS:
    void ask();

private:
    void watcherChanged(const QString& newOwner);
    void answer(bool isHostRegistered);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_owner;
    unsigned m_question = 0; // answers to older questions are stale
    bool m_isHostRegistered = false;
    bool m_isSettled = false;
};

} // namespace shell
