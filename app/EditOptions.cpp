// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EditOptions.h"

#include "platform/basic/ObjectOf.h"
#include "platform/forms/ModalState.h"

#include <memory>

namespace app {
namespace {

// Without effect while the window is hidden.
void giveFocus(QWidget& window) {
    if (window.isVisible())
        window.activateWindow();
}

} // namespace

void EditOptions::ShowOptions() {
    if (forms::bringModalToFront())
        return;
    errors::Procedure proc{m_parts.errorHandler, "frmMain", "ShowOptions"};
    const std::uint32_t generation = m_parts.state.generation;
    bool isConfirmed = false;
    edit(proc, isConfirmed);
    if (isEnding())
        return;
    if (isConfirmed) {
        proc.step([&] { m_parts.state.currentConnection.reset(); });
        proc.step([&] { giveFocus(m_parts.window); });
    }
    // A tick that found a server may have built everything from settings that were given up afterwards.
    if (isConfirmed || m_parts.state.generation != generation)
        proc.step([&] { m_parts.main.InitData(); });
    proc.step([&] { giveFocus(m_parts.window); });
}

void EditOptions::edit(errors::Procedure& proc, bool& isConfirmed) {
    std::unique_ptr<dialogs::frmOptions> dialog;
    proc.step([&] {
        dialog = std::make_unique<dialogs::frmOptions>(m_parts.errorHandler, m_parts.common, m_parts.options,
                                                       &m_parts.window);
    });
    proc.step([&] { basic::objectOf(dialog).setConfig(m_parts.state.config); });
    proc.step([&] { basic::objectOf(dialog).Init(); });
    if (isEnding()) // while the server was chosen or a failure was told
        return;
    proc.step([&] {
        basic::objectOf(dialog).exec();
        isConfirmed = !dialog->Cancelled();
    });
}

} // namespace app
