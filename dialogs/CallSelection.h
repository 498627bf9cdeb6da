// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What the details dialog needs of the window with the call list: to hear which call is selected and to go to
// the neighbour of that call. User-interface thread.

#include "platform/jet/Connection.h"

#include <QMetaObject>

#include <functional>
#include <memory>
#include <string>

class QObject;

namespace dialogs {

class CallSelection {
public:
    // The connection to the call's mailbox, which may be null, and the call's ID, "-1" when none is selected.
    using ItemChangedHandler =
        std::function<void(const std::shared_ptr<jet::Connection>& connection, const std::string& callID)>;

    virtual ~CallSelection() = default;

    // Calls the handler, before the change is through, until the connection is undone or the listener gone.
    virtual QMetaObject::Connection whenItemChanged(QObject& listener, ItemChangedHandler handler) = 0;
    // Selects the next entry of the list, or the previous one, and announces it. Does not go round.
    virtual void MoveList(bool down) = 0;
};

} // namespace dialogs
