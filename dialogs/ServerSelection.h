// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lets the user choose a server, modally over the window that asks. User-interface thread; events run
// meanwhile.

#include <QString>

#include <optional>

class QWidget;

namespace dialogs {

class ServerSelection {
public:
    virtual ~ServerSelection() = default;

    // What the user entered or picked, as it stands in the field; nothing when it was cancelled. `owner` may
    // be null or hidden.
    virtual std::optional<QString> select(QWidget* owner, const QString& current) = 0;
};

} // namespace dialogs
