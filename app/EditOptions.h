// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Lets the user edit the settings and builds everything anew when he confirmed them. A modal window that is
// up already comes to the front instead. Failures are reported as frmMain's ShowOptions. What it is given
// must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainState.h"
#include "data/basCommon.h"
#include "dialogs/frmOptions.h"
#include "errors/Procedure.h"

#include <QWidget>

namespace app {

class EditOptions {
public:
    struct Parts {
        errors::ErrorHandler& errorHandler;
        const data::basCommon& common;
        dialogs::OptionsServices options;
        QWidget& window;
        MainState& state;
        MainProcedures& main;
    };

    explicit EditOptions(Parts parts) : m_parts(parts) {}

    void ShowOptions();

private:
    void edit(errors::Procedure& proc, bool& isConfirmed);
    bool isEnding() const { return !m_parts.state.config || m_parts.state.exitRequested; }

    Parts m_parts;
};

} // namespace app
