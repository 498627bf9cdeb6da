// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Fills the call list from the database of the selected mailbox, newest call first. Failures are reported as
// frmMain's LoadList. While it lets events run, another LoadList may be asked for: it starts when this one is
// done. What it is given must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "data/FillListView2.h"
#include "data/basCommon.h"
#include "errors/Procedure.h"
#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"

#include <memory>
#include <vector>

namespace app {

class CallList {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        data::basCommon& common;
        data::FillListView2 fillList;
        forms::ListView& list;
        forms::TabStrip& tabStrip;
        MainState& state;
        MainProcedures& main;
    };

    explicit CallList(Parts parts) : m_parts(parts) {}

    void LoadList();

private:
    void loadOnce();
    void showNoMailboxes(errors::Procedure& proc);
    void showNotConnected(errors::Procedure& proc);
    void loadMailbox(errors::Procedure& proc, const data::clsConfig& config, std::int32_t mailboxID,
                     const std::vector<data::ColumnDescription>& columns);

    Parts m_parts;
    bool m_running = false;
    bool m_askedAgain = false;
};

} // namespace app
