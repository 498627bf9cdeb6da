// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/HelpCommands.h"

#include "dialogs/frmAbout.h"
#include "errors/ErrorsIgnored.h"
#include "platform/forms/ModalState.h"

#include <QScreen>

namespace app {
namespace {

// A window manager has no place for the dialog of a window that does not show.
void moveToTheMiddle(QWidget& box) {
    box.adjustSize();
    box.move(box.screen()->availableGeometry().center() - box.rect().center());
}

} // namespace

// No trap (frmMain, ShowHelp): ignores all errors.
void HelpCommands::ShowHelp() noexcept {
    errors::withErrorsIgnored([&] {
        m_parts.services.viewer.HtmlHelpA(&m_parts.owner,
                                          m_parts.services.applicationFolder + u"/Quillamar_Client.chm",
                                          shell::HH_DISPLAY_TOPIC, QStringLiteral("Client_Welcome.htm"));
    });
}

void HelpCommands::showAbout() {
    if (forms::bringModalToFront())
        return;
    dialogs::frmAbout box(m_parts.errorHandler,
                          {m_parts.services.registry, m_parts.messageBoxes, m_parts.services.startProgram},
                          &m_parts.owner);
    if (!m_parts.owner.isVisible())
        moveToTheMiddle(box);
    box.exec();
}

} // namespace app
