// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window's details dialog: created with the window, shown beside it for the selected call, let go
// with it. Failures are reported as frmMain's ShowDetails. What it is given must outlive it; user-interface
// thread.

#include "app/MainProcedures.h"
#include "dialogs/CallSelection.h"
#include "dialogs/frmCallDetails.h"

#include <memory>

namespace app {

class CallDetails {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        MainProcedures& main;
        dialogs::CallSelection& selection;
        QWidget& owner;
    };

    explicit CallDetails(Parts parts) : m_parts(parts) {}

    void load(const dialogs::CallDetailsServices& services);
    // Shows the dialog and has it told the selected call; does nothing before load() and after unload().
    void ShowDetails();
    // Releases the connection that the dialog holds, and the dialog.
    void unload();

private:
    Parts m_parts;
    std::shared_ptr<dialogs::frmCallDetails> m_frmCallDetails;
};

} // namespace app
