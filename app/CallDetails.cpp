// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CallDetails.h"

#include "errors/Procedure.h"
#include "platform/forms/ModalState.h"

#include <utility>

namespace app {

void CallDetails::load(const dialogs::CallDetailsServices& services) {
    m_frmCallDetails = std::make_shared<dialogs::frmCallDetails>(services, &m_parts.owner);
}

void CallDetails::ShowDetails() {
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "ShowDetails"};
    const auto dialog = m_frmCallDetails;
    if (!dialog)
        return;
    proc.step([&] { dialog->Init(m_parts.selection); });
    proc.step([&] {
        forms::showNonModal(*dialog);
        dialog->raise();
        dialog->activateWindow();
    });
    proc.step([&] { m_parts.main.ChangeItem(); });
}

void CallDetails::unload() {
    if (const auto dialog = std::exchange(m_frmCallDetails, nullptr)) {
        dialog->UnInit();
        dialog->hide();
    }
}

} // namespace app
