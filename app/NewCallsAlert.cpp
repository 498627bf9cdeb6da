// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NewCallsAlert.h"

#include "errors/Procedure.h"
#include "resources/LocalText.h"

#include <QLabel>

namespace app {

using resources::localText;

void NewCallsAlert::load() {
    m_AlertForm = std::make_unique<tray::frmAlert>(m_parts.services.errorHandler, m_parts.services.desktop);
    connect(m_AlertForm.get(), &tray::frmAlert::Show, this,
            [this](bool& showList) { AlertForm_Show(showList); });
}

void NewCallsAlert::announce(std::int32_t newCalls) {
    const QString message = localText(3765, "You have ") + u' ' + QString::number(newCalls) + u' ' +
                            localText(3766, " new calls");
    if (!m_AlertForm)
        return;
    m_AlertForm->lblInfo().setText(message);
    m_AlertForm->ShowForm();
}

void NewCallsAlert::AlertForm_Show(bool showList) {
    m_parts.services.shareAccess.userActs();
    errors::Procedure proc{m_parts.services.errorHandler, "frmMain", "AlertForm_Show"};
    proc.step([&] { m_parts.main.LoadList(); });
    if (showList)
        proc.step([&] { m_parts.main.showWindow(); });
    const auto config = m_parts.state.config;
    if (!config)
        return;
    for (const auto& mailbox : config->Mailboxes)
        proc.step([&] { mailbox->NewCallCount = 0; });
    proc.step([&] { m_parts.state.newCallTotal = 0; });
}

// It may be further up the stack, waiting for the click that led here.
void NewCallsAlert::unload() {
    if (auto* popup = m_AlertForm.release()) {
        popup->hide();
        popup->deleteLater();
    }
}

} // namespace app
