// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/OptionsWorld.h"
#include "tests/errors/Provocation.h"

#include <QLineEdit>
#include <QPushButton>

namespace dialogs {
namespace {

using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kFormLoad{"frmOptions", "Form_Load", "it sets captions and the list's style"};

const Provocation kInit{"frmOptions", "Init", basic::kElementNotFound, [](Trial& trial) -> Effect {
                            OptionsWorld world(&trial);
                            world.mailbox("15");
                            world.watch(12);
                            world.watch(15);
                            trial.repair = [&] { world.list().ListItems().Add("12K", "12"); };
                            world.openWithList();
                            auto& items = world.list().ListItems();
                            const bool isFound = items.Count() == 2 && items.Item("12K").Checked();
                            return {isFound, items.Item("15K").Checked()};
                        }};

const Provocation kOK{"frmOptions", "cmdOK_Click", basic::kOverflow, [](Trial& trial) -> Effect {
                          OptionsWorld world(&trial);
                          world.openWithList();
                          auto& interval = world.control<QLineEdit>("txtInterval");
                          interval.setText(QStringLiteral("99999999999"));
                          trial.repair = [&] { interval.setText(QStringLiteral("60")); };
                          world.control<QPushButton>("cmdOK").click();
                          return {world.config->PollInterval == 60, !world.dialog->Cancelled()};
                      }};

const Provocation kServer{
    "frmOptions", "cmdServer_Click", basic::kInvalidProcedureCall, [](Trial& trial) -> Effect {
        OptionsWorld world(&trial);
        world.openWithList();
        world.servers.answer = QStringLiteral("other");
        world.servers.onSelect = [] { throw basic::RuntimeError(basic::kInvalidProcedureCall); };
        trial.repair = [&] { world.servers.onSelect = nullptr; };
        world.control<QPushButton>("cmdServer").click();
        return {world.config->ServerName == "other"};
    }};

} // namespace
} // namespace dialogs
