// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Asks computers for their shares. Made for one showing of the network browser, which lets it go when it
// closes, whatever is under way. User-interface thread.

#include <QObject>
#include <QString>
#include <QStringList>

namespace shell {

class ShareSource : public QObject {
    Q_OBJECT
public:
    // Never blocks; answered by one of the signals, later.
    virtual void list(const QString& computer) = 0;

Q_SIGNALS:
    void listed(const QString& computer, const QStringList& shares);
    void failed(const QString& computer);
};

} // namespace shell
