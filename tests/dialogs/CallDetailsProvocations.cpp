// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/DetailsWorld.h"
#include "tests/errors/Provocation.h"

#include <QLabel>
#include <QPushButton>

namespace dialogs {
namespace {

using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kInitialize{"frmCallDetails", "Form_Initialize", "it sets a caption"};
const CannotFail kItemChanged{"frmCallDetails", "MainForm_ItemChanged",
                              "it keeps two values and calls LoadData, which reports its failures itself"};

const Provocation kInit{"frmCallDetails", "Init", basic::kInvalidProcedureCall, [](Trial& trial) -> Effect {
                            DetailsWorld world(trial);
                            world.log.append({.callID = "A1"});
                            world.selection.isBroken = true;
                            trial.repair = [&] { world.selection.isBroken = false; };
                            world.dialog = std::make_shared<frmCallDetails>(
                                CallDetailsServices{trial, world.clipboard, world.format, world.locale},
                                nullptr);
                            auto& tab = world.control<forms::CVTab>("CVTab1");
                            tab.SetTabCaption(1, "?");
                            world.dialog->Init(world.selection);
                            world.announce("A1");
                            const bool hears = world.control<QLabel>("lblCallID").text() == u"A1";
                            return {hears, hears || tab.TabCaption(1) == "Detail Information"};
                        }};

// Another call was shown before; of this one's row the connection knows nothing until it is opened.
const Provocation kLoadData{"frmCallDetails", "LoadData", basic::kObjectClosed, [](Trial& trial) -> Effect {
                                DetailsWorld world(trial);
                                world.log.append({.callID = "A1"});
                                world.log.append({.callID = "A2"});
                                world.open();
                                world.announce("A1");
                                const auto connection = std::make_shared<jet::Connection>(world.engine);
                                trial.repair = [&] { connection->Open(world.connectionText()); };
                                world.selection.announce(connection, "A2");
                                const bool isShown = world.control<QLabel>("lblCallID").text() == u"A2";
                                const bool saysNone = !world.control<QLabel>("lblNoEvent").isHidden();
                                return {isShown, isShown || saysNone};
                            }};

Effect step(Trial& trial, const char* button) {
    DetailsWorld world(trial);
    world.open();
    world.selection.isBroken = true;
    trial.repair = [&] { world.selection.isBroken = false; };
    world.control<QPushButton>(button).click();
    return {!world.selection.moves.empty()};
}

const Provocation kUp{"frmCallDetails", "cmdUp_Click", basic::kInvalidProcedureCall,
                      [](Trial& trial) { return step(trial, "cmdUp"); }};
const Provocation kDown{"frmCallDetails", "cmdDown_Click", basic::kInvalidProcedureCall,
                        [](Trial& trial) { return step(trial, "cmdDown"); }};

const Provocation kCopy{"frmCallDetails", "cmdCopy_Click", 521, [](Trial& trial) -> Effect {
                            DetailsWorld world(trial);
                            world.open();
                            world.clipboard.isLocked = true;
                            trial.repair = [&] { world.clipboard.isLocked = false; };
                            world.control<QPushButton>("cmdCopy").click();
                            return {world.clipboard.cleared > 0, world.clipboard.text != "from before"};
                        }};

} // namespace
} // namespace dialogs
