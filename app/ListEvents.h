// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The events of the call list and of the tab strip. The list's report failures as frmMain's lsCalls_…, the
// strip's are ignored. What it is given must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "app/ShareAccess.h"
#include "errors/ErrorHandler.h"
#include "platform/forms/CommandBar.h"
#include "platform/forms/ListView.h"
#include "platform/forms/TabStrip.h"

#include <QObject>

namespace app {

class ListEvents : public QObject {
    Q_OBJECT
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        forms::ListView& list;
        forms::TabStrip& tabStrip;
        forms::CommandBar& ab;
        MainState& state;
        MainProcedures& main;
        const ShareAccess& shareAccess;
    };

    explicit ListEvents(Parts parts);

private:
    void lsCalls_Click();
    void lsCalls_ItemClick();
    void lsCalls_DblClick();
    void lsCalls_MouseUp(int button, const QPoint& globalPos);
    void TabStrip_Click();

    Parts m_parts;
};

} // namespace app
