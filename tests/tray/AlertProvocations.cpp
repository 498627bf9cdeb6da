// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/RuntimeError.h"
#include "tests/errors/Provocation.h"
#include "tray/frmAlert.h"

#include <QTest>

namespace tray {
namespace {

using errors::Effect;
using errors::Provocation;
using errors::Trial;

class BrokenDesktop final : public shell::DesktopWindows {
public:
    shell::WindowHandle FindWindowExA(std::string_view) override {
        if (isBroken)
            throw basic::RuntimeError(basic::kInvalidProcedureCall);
        wasAsked = true;
        return 0;
    }
    shell::WindowHandle GetDesktopWindow() override { return 1; }
    shell::Rectangle GetWindowRect(shell::WindowHandle) override { return {0, 0, 1024, 768}; }
    void move(QWidget&, int, int) override {}
    void clearOwner(QWidget&) override {}
    void makeTopMost(QWidget&) override {}

    bool isBroken = true;
    bool wasAsked = false;
};

const Provocation kShowForm{"frmAlert", "ShowForm", basic::kInvalidProcedureCall, [](Trial& trial) -> Effect {
                                BrokenDesktop desktop;
                                trial.repair = [&] { desktop.isBroken = false; };
                                frmAlert popup(trial, desktop);
                                popup.ShowForm();
                                return {desktop.wasAsked, popup.isVisible()};
                            }};

// The owner's handler of Show fails: the last statement of a click.
Effect click(Trial& trial, const char* link) {
    BrokenDesktop desktop;
    desktop.isBroken = false;
    frmAlert popup(trial, desktop);
    bool isBroken = true;
    bool wasHandled = false;
    trial.repair = [&] { isBroken = false; };
    QObject::connect(&popup, &frmAlert::Show, [&] {
        if (isBroken)
            throw basic::RuntimeError(basic::kObjectNotSet);
        wasHandled = true;
    });
    popup.ShowForm();
    QTest::mouseClick(popup.findChild<QWidget*>(QString::fromLatin1(link)), Qt::LeftButton);
    return {wasHandled};
}

const Provocation kLabel1Click{"frmAlert", "Label1_Click", basic::kObjectNotSet,
                               [](Trial& trial) { return click(trial, "Label1"); }};
const Provocation kLabel2Click{"frmAlert", "Label2_Click", basic::kObjectNotSet,
                               [](Trial& trial) { return click(trial, "Label2"); }};

} // namespace
} // namespace tray
