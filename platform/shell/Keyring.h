// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The keyring of the user's session (Secret Service or KWallet): texts by name, under the program's own.
// There is never a plain file instead. Nothing here waits: answers come from the event loop, and where the
// keyring has to be opened first, when that was done. User-interface thread.

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace shell {

class Keyring final : public QObject {
    Q_OBJECT
public:
    using Found = std::function<void(const std::optional<QString>& text)>;

    // Whether the session has one, running or ready to be started.
    static bool isThere();

    // Nothing for a text that is not there, and for a keyring that the user leaves closed.
    void read(const QString& name, Found found);
    // `failed` is called when the text could not be stored.
    void write(const QString& name, const QString& text, std::function<void()> failed);
    void remove(const QString& name);
};

} // namespace shell
