// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ButtonStates.h"
#include "app/CommandBarLayout.h"
#include "app/Commands.h"
#include "app/ListEvents.h"
#include "app/LoadCaptions.h"
#include "app/OutsideEvents.h"
#include "app/TrayEvents.h"
#include "tests/app/ScriptedMain.h"
#include "tests/errors/Provocation.h"

#include <QEvent>
#include <QMainWindow>
#include <QMenu>

namespace app {
namespace {

using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kWindowProc{"frmMain", "ISubclass_WindowProc",
                             "the layout ignores its errors, and a notification is only compared"};

// A statement of somebody else's that fails until the trial's repair.
class Breakable {
public:
    explicit Breakable(Trial& trial) {
        trial.repair = [this] { m_isBroken = false; };
    }

    void operator()() {
        if (m_isBroken)
            throw basic::RuntimeError(basic::kInvalidProcedureCall);
        m_wasRun = true;
    }
    bool wasRun() const { return m_wasRun; }

private:
    bool m_isBroken = true;
    bool m_wasRun = false;
};

const Provocation kToolClick{"frmMain", "ab_ToolClick", basic::kInvalidProcedureCall,
                             [](Trial& trial) -> Effect {
                                 Breakable command(trial);
                                 Commands commands(trial);
                                 commands.add("miSPlay", [&] { command(); });
                                 commands.ab_ToolClick("miSPlay");
                                 return {command.wasRun()};
                             }};

// The door's handlers, each run once.
Effect fromOutside(Trial& trial, void (OutsideEvents::*event)() const) {
    Breakable handler(trial);
    const auto run = [&] { handler(); };
    const OutsideEvents events{trial, {run, run, run, run}};
    (events.*event)();
    return {handler.wasRun()};
}

const Provocation kActivate{"frmMain", "Activate", basic::kInvalidProcedureCall,
                            [](Trial& trial) { return fromOutside(trial, &OutsideEvents::activated); }};
const Provocation kAreaMissing{
    "frmMain", "NotificationAreaMissing", basic::kInvalidProcedureCall,
    [](Trial& trial) { return fromOutside(trial, &OutsideEvents::notificationAreaMissing); }};
const Provocation kAreaReturned{
    "frmMain", "NotificationAreaReturned", basic::kInvalidProcedureCall,
    [](Trial& trial) { return fromOutside(trial, &OutsideEvents::notificationAreaReturned); }};
const Provocation kEndSession{"frmMain", "EndSession", basic::kInvalidProcedureCall,
                              [](Trial& trial) { return fromOutside(trial, &OutsideEvents::sessionEnds); }};

const Provocation kMenuClick{"frmMain", "m_frmSysTray_MenuClick", basic::kInvalidProcedureCall,
                             [](Trial& trial) -> Effect {
                                 forms::Timer timer;
                                 MainState state;
                                 ScriptedMain main;
                                 main.failing = "showWindow";
                                 trial.repair = [&] { main.failing.clear(); };
                                 TrayEvents events({trial, timer, state, main});
                                 events.m_frmSysTray_MenuClick(QStringLiteral("open"));
                                 return {main.did("showWindow")};
                             }};

const Provocation kUpdateButtonStates{"frmMain", "UpdateButtonStates", basic::kInvalidProcedureCall,
                                      [](Trial& trial) -> Effect {
                                          QMainWindow window;
                                          forms::CommandBar ab(window);
                                          layOutCommandBar(ab);
                                          ab.Bands(kBandStatus).Tools("miSRew").SetChecked(true);
                                          forms::ListView list;
                                          Breakable player(trial);
                                          ButtonStates states({trial, ab, list, [&] {
                                                                   player();
                                                                   return PlaybackState{true, false, true};
                                                               }});
                                          states.UpdateButtonStates();
                                          return {ab.Bands(kBandStatus).Tools("miSPlay").Checked(),
                                                  !ab.Bands(kBandStatus).Tools("miSRew").Checked()};
                                      }};

// A window that does not take its caption.
class TouchyWindow final : public QMainWindow {
public:
    bool isTouchy = true;

protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::WindowTitleChange && isTouchy && !windowTitle().isEmpty()) {
            setWindowTitle(QString());
            throw basic::RuntimeError(basic::kInvalidPropertyValue);
        }
        QMainWindow::changeEvent(event);
    }
};

const Provocation kLoadCaptions{"frmMain", "LoadCaptions", basic::kInvalidPropertyValue,
                                [](Trial& trial) -> Effect {
                                    TouchyWindow window;
                                    trial.repair = [&] { window.isTouchy = false; };
                                    forms::CommandBar ab(window);
                                    layOutCommandBar(ab);
                                    ab.Bands(kBandStatus).Tools("miSPlay").SetCaption("before");
                                    LoadCaptions(trial, window, ab);
                                    return {window.windowTitle() == QStringLiteral("Quillamar Calls"),
                                            ab.Bands(kBandStatus).Tools("miSPlay").Caption() != "before"};
                                }};

// What the list's and the tab strip's events need.
struct ListWorld {
    explicit ListWorld(Trial& trial) : events({trial, list, tabStrip, ab, state, main, shareAccess}) {
        trial.repair = [this] { main.failing.clear(); };
    }

    QMainWindow window;
    forms::CommandBar ab{window};
    forms::ListView list;
    forms::TabStrip tabStrip;
    MainState state;
    ScriptedMain main;
    ShareAccess shareAccess;
    ListEvents events;
};

const Provocation kClick{"frmMain", "lsCalls_Click", basic::kInvalidProcedureCall,
                         [](Trial& trial) -> Effect {
                             ListWorld world(trial);
                             world.main.failing = "ChangeItem";
                             Q_EMIT world.list.Click();
                             return {world.main.did("ChangeItem"), world.main.did("UpdateButtonStates")};
                         }};

const Provocation kItemClick{"frmMain", "lsCalls_ItemClick", basic::kInvalidProcedureCall,
                             [](Trial& trial) -> Effect {
                                 ListWorld world(trial);
                                 world.main.failing = "ChangeItem";
                                 Q_EMIT world.list.ItemClick(1);
                                 return {world.main.did("ChangeItem"), world.main.did("UpdateButtonStates")};
                             }};

const Provocation kDblClick{"frmMain", "lsCalls_DblClick", basic::kInvalidProcedureCall,
                            [](Trial& trial) -> Effect {
                                ListWorld world(trial);
                                world.list.ColumnHeaders().Add("", {70}, 0);
                                world.list.SetSelectedItem(world.list.ListItems().Add("KA", "A"));
                                world.main.failing = "ab_ToolClick miSPlay";
                                Q_EMIT world.list.DblClick();
                                return {world.main.did("ab_ToolClick miSPlay")};
                            }};

const Provocation kMouseUp{"frmMain", "lsCalls_MouseUp", basic::kElementNotFound, [](Trial& trial) -> Effect {
                               ListWorld world(trial);
                               trial.repair = [&] { layOutCommandBar(world.ab); };
                               Q_EMIT world.list.MouseUp(2, QPoint(10, 10));
                               return {world.ab.BandCount() > 0 &&
                                       world.ab.Bands("mnuPopup").menu()->isVisible()};
                           }};

} // namespace
} // namespace app
