// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Works out the selected call and tells it, and steps from call to call. The connection to the selected
// mailbox's database is opened when it is first needed and kept in the state until the mailbox changes.
// Failures are reported as frmMain's ChangeItem and MoveList. What it is given must outlive it;
// user-interface thread.

#include "app/MainState.h"
#include "data/basCommon.h"
#include "errors/ErrorHandler.h"
#include "errors/Procedure.h"
#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"

#include <functional>
#include <memory>
#include <string>

namespace app {

class Selection {
public:
    // The current connection, which may be null, and the call's ID, "-1" when no call is selected.
    using ItemChanged =
        std::function<void(const std::shared_ptr<jet::Connection>&, const std::string& callID)>;

    struct Parts {
        errors::ErrorHandler& errorHandler;
        data::basCommon& common;
        forms::ListView& list;
        forms::TabStrip& tabStrip;
        MainState& state;
        ItemChanged itemChanged;
    };

    explicit Selection(Parts parts) : m_parts(std::move(parts)) {}

    void ChangeItem();
    // Makes the next entry of the list, or the previous one, the only one selected and tells it. Does nothing
    // without a selected entry and at the list's end.
    void MoveList(bool down);

private:
    void openMailbox(errors::Procedure& proc, std::int32_t mailboxID);

    Parts m_parts;
};

} // namespace app
