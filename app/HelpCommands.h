// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The commands of the help menu: the help file, and the about box. The about box is modal with the main
// window as its owner and lives for one showing. What it is given must outlive it; user-interface thread.

#include "dialogs/SystemInformation.h"
#include "errors/ErrorHandler.h"
#include "platform/shell/HelpViewer.h"

#include <QString>

class QWidget;

namespace app {

struct HelpServices {
    shell::HelpViewer& viewer;
    QString applicationFolder; // where the help file is
    registry::Registry& registry;
    dialogs::StartProgram startProgram;
};

class HelpCommands {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        forms::MessageBoxes& messageBoxes;
        HelpServices services;
        QWidget& owner;
    };

    explicit HelpCommands(Parts parts) : m_parts(std::move(parts)) {}

    // Opens the help file at its welcome page. Ignores all errors; without the file nothing shows.
    void ShowHelp() noexcept;
    // While a modal window is up, that one comes to the front instead.
    void showAbout();

private:
    Parts m_parts;
};

} // namespace app
