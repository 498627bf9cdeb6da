// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ListEvents.h"

#include "errors/ErrorsIgnored.h"
#include "errors/Procedure.h"
#include "platform/forms/MouseButtons.h"

namespace app {
ListEvents::ListEvents(Parts parts) : m_parts(parts) {
    connect(&m_parts.list, &forms::ListView::Click, this, &ListEvents::lsCalls_Click);
    connect(&m_parts.list, &forms::ListView::ItemClick, this, &ListEvents::lsCalls_ItemClick);
    connect(&m_parts.list, &forms::ListView::DblClick, this, &ListEvents::lsCalls_DblClick);
    connect(&m_parts.list, &forms::ListView::MouseUp, this, &ListEvents::lsCalls_MouseUp);
    connect(&m_parts.tabStrip, &forms::TabStrip::Click, this, &ListEvents::TabStrip_Click);
}

void ListEvents::lsCalls_Click() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "lsCalls_Click"};
    proc.step([&] { m_parts.main.ChangeItem(); });
    proc.step([&] { m_parts.main.UpdateButtonStates(); });
}

void ListEvents::lsCalls_ItemClick() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "lsCalls_ItemClick"};
    proc.step([&] { m_parts.main.ChangeItem(); });
    proc.step([&] { m_parts.main.UpdateButtonStates(); });
}

void ListEvents::lsCalls_DblClick() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "lsCalls_DblClick"};
    if (proc.value(false, [&] { return m_parts.list.SelectedItem().has_value(); }))
        proc.step([&] { m_parts.main.ab_ToolClick("miSPlay"); });
}

void ListEvents::lsCalls_MouseUp(int button, const QPoint& globalPos) {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "lsCalls_MouseUp"};
    if (button == forms::kRightButton)
        proc.step([&] { m_parts.ab.PopupMenu("mnuPopup", globalPos); });
}

// No trap (frmMain, TabStrip_Click): ignores all errors.
void ListEvents::TabStrip_Click() {
    using errors::withErrorsIgnored;
    withErrorsIgnored([&] { m_parts.shareAccess.userActs(); });
    withErrorsIgnored([&] { m_parts.state.currentConnection.reset(); });
    withErrorsIgnored([&] { m_parts.main.LoadList(); });
    withErrorsIgnored([&] { m_parts.main.ChangeItem(); });
    withErrorsIgnored([&] { m_parts.main.UpdateButtonStates(); });
}

} // namespace app
