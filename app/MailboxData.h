// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// InitData and InitConnection: builds the tabs, the list and the first counts from the configuration, at
// start and whenever it changed. Failures are reported as frmMain's procedures of these names. What it is
// given must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "data/basCommon.h"
#include "errors/Procedure.h"
#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/Timer.h"
#include "platform/share/FileSystemObject.h"

namespace app {

class MailboxData {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        data::basCommon& common;
        share::FileSystemObject& files;
        forms::ListView& list;
        forms::TabStrip& tabStrip;
        forms::Timer& timer;
        MainState& state;
        MainProcedures& main;
    };

    explicit MailboxData(Parts parts) : m_parts(parts) {}

    void InitData();
    // True when a server is configured and its share is there. Opens no database.
    bool InitConnection();

private:
    void countAnew(const data::clsConfig& config);
    void forgetNewCalls(const data::clsConfig& config);
    void clear(errors::Procedure& proc);
    void showMailboxes(errors::Procedure& proc, const data::clsConfig& config);
    void addTabs(errors::Procedure& proc, const data::clsConfig& config);

    Parts m_parts;
};

} // namespace app
