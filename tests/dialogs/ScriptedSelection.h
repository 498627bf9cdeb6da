// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window with the call list, of which only the announcements are real: each step is noted, and announcing
// or stepping can be made to fail.

#include "dialogs/CallSelection.h"
#include "platform/basic/RuntimeError.h"

#include <QObject>

#include <vector>

namespace dialogs {

class ScriptedSelection final : public QObject, public CallSelection {
    Q_OBJECT
public:
    QMetaObject::Connection whenItemChanged(QObject& listener, ItemChangedHandler handler) override {
        failIfBroken();
        return connect(this, &ScriptedSelection::ItemChanged, &listener, std::move(handler));
    }
    void MoveList(bool down) override {
        failIfBroken();
        moves.push_back(down);
    }
    void announce(const std::shared_ptr<jet::Connection>& connection, const std::string& callID) {
        Q_EMIT ItemChanged(connection, callID);
    }

    std::vector<bool> moves; // true: down
    bool isBroken = false;

Q_SIGNALS:
    void ItemChanged(const std::shared_ptr<jet::Connection>& connection, const std::string& callID);

private:
    void failIfBroken() const {
        if (isBroken)
            throw basic::RuntimeError(basic::kInvalidProcedureCall);
    }
};

} // namespace dialogs
