// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window's popup: created with the window, shown with the number of new calls, let go with it. Its
// answer loads the list and resets the counts; failures are reported as frmMain's AlertForm_Show. What it is
// given must outlive it; user-interface thread.

#include "app/MainProcedures.h"
#include "app/MainServices.h"
#include "app/MainState.h"
#include "tray/frmAlert.h"

#include <QObject>

#include <cstdint>
#include <memory>

namespace app {

class NewCallsAlert : public QObject {
    Q_OBJECT
public:
    struct Parts {
        const MainServices& services;
        MainState& state;
        MainProcedures& main;
    };

    explicit NewCallsAlert(Parts parts) : m_parts(parts) {}

    void load();
    // Does nothing before load() and after unload().
    void announce(std::int32_t newCalls);
    void unload();

private:
    void AlertForm_Show(bool showList);

    Parts m_parts;
    std::unique_ptr<tray::frmAlert> m_AlertForm;
};

} // namespace app
