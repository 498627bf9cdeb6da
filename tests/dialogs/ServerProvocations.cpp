// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/ServerWorld.h"
#include "tests/errors/Provocation.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace dialogs {
namespace {

using errors::Effect;
using errors::Provocation;
using errors::Trial;

// The neighbourhood cannot be looked at; nothing that follows can do without it.
Effect browse(Trial& trial, std::string (clsComBrowser::*method)(shell::OwnerHandle)) {
    ServerWorld world(&trial);
    world.shell.isBroken = true;
    trial.repair = [&] { world.shell.isBroken = false; };
    world.shell.displayName = "SERVER1";
    world.shell.picked = shell::ItemIdList{"SERVER1", ""};
    return {(world.browser.*method)(7) == "\\\\SERVER1"};
}

const Provocation kWorkstation{
    "clsComBrowser", "GetBrowseNetworkWorkstation", basic::kInvalidProcedureCall,
    [](Trial& trial) { return browse(trial, &clsComBrowser::GetBrowseNetworkWorkstation); }};
const Provocation kShare{"clsComBrowser", "GetBrowseNetworkShare", basic::kInvalidProcedureCall,
                         [](Trial& trial) { return browse(trial, &clsComBrowser::GetBrowseNetworkShare); }};

void click(frmServer& form, const char* name) {
    QTest::mouseClick(form.findChild<QPushButton*>(QString::fromLatin1(name)), Qt::LeftButton);
}

const Provocation kBrowse{"frmServer", "cmdBrowse_Click", basic::kObjectNotSet, [](Trial& trial) -> Effect {
                              ServerWorld world(&trial);
                              world.shell.displayName = "SERVER1";
                              world.shell.picked = shell::ItemIdList{"SERVER1", ""};
                              frmServer form(world.services());
                              form.show();
                              bool isBroken = true;
                              bool wasHandled = false;
                              trial.repair = [&] {
                                  isBroken = false;
                                  form.txtServer().clear();
                              };
                              QObject::connect(&form.txtServer(), &QLineEdit::textChanged, [&] {
                                  if (isBroken)
                                      throw basic::RuntimeError(basic::kObjectNotSet);
                                  wasHandled = !form.txtServer().text().isEmpty();
                              });
                              click(form, "cmdBrowse");
                              return {wasHandled};
                          }};

// A server that could not be asked is one that cannot be reached.
const Provocation kOk{"frmServer", "OKButton_Click", basic::kPathFileAccess, [](Trial& trial) -> Effect {
                          ServerWorld world(&trial);
                          bool isBroken = true;
                          bool wasAsked = false;
                          trial.repair = [&] { isBroken = false; };
                          world.onCheck = [&] {
                              if (isBroken)
                                  throw basic::RuntimeError(basic::kPathFileAccess);
                              wasAsked = true;
                          };
                          frmServer form(world.services());
                          form.show();
                          click(form, "OKButton");
                          return {wasAsked, !world.messageBoxes.boxes.empty()};
                      }};

// The owner's handler of the end fails.
const Provocation kCancel{"frmServer", "CancelButton_Click", basic::kObjectNotSet,
                          [](Trial& trial) -> Effect {
                              ServerWorld world(&trial);
                              frmServer form(world.services());
                              form.show();
                              bool isBroken = true;
                              bool wasHandled = false;
                              trial.repair = [&] { isBroken = false; };
                              QObject::connect(&form, &QDialog::rejected, [&] {
                                  if (isBroken)
                                      throw basic::RuntimeError(basic::kObjectNotSet);
                                  wasHandled = true;
                              });
                              click(form, "CancelButton");
                              return {wasHandled};
                          }};

} // namespace
} // namespace dialogs
