// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/MainWorld.h"
#include "tests/app/ScriptedMain.h"
#include "tests/errors/Provocation.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>

#include <filesystem>

namespace app {
namespace {

using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kQueryUnload{"frmMain", "Form_QueryUnload", "it hides the window and sets a flag"};

const CannotFail kMoveList{"frmMain", "MoveList",
                           "it uses items as they are now, and ChangeItem reports its failures itself"};

// The real window over real call logs, with the trial as its error handler.
class World final : public MainWorld {
public:
    explicit World(Trial& trial) : MainWorld(&trial) {}
    void TestBody() override {}

    using MainWorld::clickPopup;
    using MainWorld::column;
    using MainWorld::common;
    using MainWorld::configure;
    using MainWorld::files;
    using MainWorld::folder;
    using MainWorld::load;
    using MainWorld::mailbox;
    using MainWorld::notificationArea;
    using MainWorld::options;
    using MainWorld::search;
    using MainWorld::servers;
    using MainWorld::tick;
    using MainWorld::window;

    data::clsMailbox& counted(int position) {
        data::clsMailbox& box = *window->state().config->Mailboxes.at(position);
        box.LastCallCount = 0;
        return box;
    }
};

// A call log of which only the header and the catalog's definition are left, until it is put right.
class DamagedLog {
public:
    DamagedLog(World& world, int id)
        : m_file(world.mailbox(id).path()), m_sound(world.folder.path("sound.mdb")) {
        std::filesystem::copy_file(m_file, m_sound);
        std::filesystem::resize_file(m_file, 3 * 4096);
    }
    void putRight() const {
        std::filesystem::copy_file(m_sound, m_file, std::filesystem::copy_options::overwrite_existing);
    }

private:
    std::filesystem::path m_file;
    std::filesystem::path m_sound;
};

const Provocation kFormLoad{"frmMain", "Form_Load", basic::kInvalidProcedureCall, [](Trial& trial) -> Effect {
                                World world(trial);
                                world.configure({12});
                                world.mailbox(12).append(2);
                                world.notificationArea.failing = 0; // NIM_ADD
                                trial.repair = [&] { world.notificationArea.failing.reset(); };
                                world.load();
                                const bool hasIcon = !world.notificationArea.messages.empty();
                                world.notificationArea.failing.reset();
                                return {hasIcon, world.column(0).size() == 2};
                            }};

const Provocation kInitData{
    "frmMain", "InitData", basic::kOverflow, [](Trial& trial) -> Effect {
        World world(trial);
        world.configure({12});
        world.mailbox(12).append(1);
        world.load();
        const auto config = world.window->state().config;
        config->PollInterval = 2'147'484;
        trial.repair = [&] { config->PollInterval = 600; };
        world.mailbox(12).append(1);
        world.window->InitData();
        return {world.window->timer().Interval() == 600'000, world.column(0).size() == 2};
    }};

// Folders can be asked for once somebody repaired the server.
class BrokenServer final : public share::FileSystemObject {
public:
    bool FileExists(std::string_view) override { return false; }
    bool FolderExists(std::string_view) override {
        if (isBroken)
            throw basic::RuntimeError(basic::kPathFileAccess);
        return true;
    }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view, share::OpenMode) override { return nullptr; }

    bool isBroken = true;
};

const Provocation kInitConnection{"frmMain", "InitConnection", basic::kPathFileAccess,
                                  [](Trial& trial) -> Effect {
                                      World world(trial);
                                      world.configure({12});
                                      world.load();
                                      BrokenServer server;
                                      trial.repair = [&] { server.isBroken = false; };
                                      forms::ListView list;
                                      forms::TabStrip tabStrip;
                                      forms::Timer timer;
                                      data::basCommon common(trial, server, [] { return nullptr; });
                                      MailboxData data({trial, common, server, list, tabStrip, timer,
                                                        world.window->state(), *world.window});
                                      return {data.InitConnection()};
                                  }};

const Provocation kLoadList{"frmMain", "LoadList", basic::kProviderFailure, [](Trial& trial) -> Effect {
                                World world(trial);
                                world.configure({12});
                                world.mailbox(12).append(2);
                                world.load();
                                const DamagedLog log(world, 12);
                                trial.repair = [&] { log.putRight(); };
                                bool wasTold = false;
                                QObject::connect(&*world.window, &frmMain::ItemChanged,
                                                 [&] { wasTold = true; });
                                world.window->LoadList();
                                return {world.column(0).size() == 2, wasTold};
                            }};

const Provocation kChangeItem{"frmMain", "ChangeItem", basic::kInvalidProcedureCall,
                              [](Trial& trial) -> Effect {
                                  World world(trial);
                                  world.configure({12});
                                  world.load();
                                  bool isBroken = true;
                                  bool wasTold = false;
                                  trial.repair = [&] { isBroken = false; };
                                  QObject::connect(&*world.window, &frmMain::ItemChanged, [&] {
                                      if (isBroken)
                                          throw basic::RuntimeError(basic::kInvalidProcedureCall);
                                      wasTold = true;
                                  });
                                  world.window->ChangeItem();
                                  return {wasTold};
                              }};

const Provocation kShowDetails{
    "frmMain", "ShowDetails", basic::kNonModalWhileModal, [](Trial& trial) -> Effect {
        World world(trial);
        world.configure({12});
        world.load();
        QDialog modal;
        modal.open();
        trial.repair = [&] { modal.close(); };
        bool wasTold = false;
        QObject::connect(&*world.window, &frmMain::ItemChanged, [&] { wasTold = true; });
        world.window->ab_ToolClick("miEDetails");
        const auto* details = world.window->findChild<QDialog*>(QStringLiteral("frmCallDetails"));
        return {details->isVisible(), wasTold};
    }};

const Provocation kTick{"frmMain", "mTimer_ThatTime", basic::kProviderFailure, [](Trial& trial) -> Effect {
                            World world(trial);
                            world.configure({12, 15});
                            world.mailbox(12).append(5);
                            world.mailbox(15).append(1);
                            world.load();
                            const auto& first = world.counted(1);
                            const auto& second = world.counted(2);
                            const DamagedLog log(world, 12);
                            trial.repair = [&] { log.putRight(); };
                            world.tick();
                            return {first.LastCallCount == 5, second.LastCallCount == 1};
                        }};

const Provocation kAlertShow{"frmMain", "AlertForm_Show", basic::kNonModalWhileModal,
                             [](Trial& trial) -> Effect {
                                 World world(trial);
                                 world.configure({12});
                                 world.mailbox(12).append(1);
                                 world.load();
                                 world.mailbox(12).append(1);
                                 world.tick();
                                 QDialog dialog;
                                 dialog.open();
                                 trial.repair = [&] { dialog.close(); };
                                 world.clickPopup("Label2");
                                 return {world.window->isVisible(), world.window->state().newCallTotal == 0};
                             }};

const Provocation kShowOptions{
    "frmMain", "ShowOptions", basic::kInvalidProcedureCall, [](Trial& trial) -> Effect {
        World world(trial);
        world.configure({});
        world.load();
        ScriptedMain main;
        main.failing = "InitData";
        trial.repair = [&] { main.failing.clear(); };
        world.options.action = [](dialogs::frmOptions& dialog) {
            static_cast<void>(QTest::qWaitFor(
                [&] { return dialog.findChild<QPushButton*>(QStringLiteral("cmdOK"))->isEnabled(); }));
            dialog.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
        };
        EditOptions edit(
            {trial, world.common, {world.search, world.servers}, *world.window, world.window->state(), main});
        edit.ShowOptions();
        return {main.did("InitData")};
    }};

const Provocation kFormUnload{"frmMain", "Form_Unload", basic::kInvalidProcedureCall,
                              [](Trial& trial) -> Effect {
                                  World world(trial);
                                  world.configure({12});
                                  world.load();
                                  world.notificationArea.failing = 2; // NIM_DELETE
                                  trial.repair = [&] { world.notificationArea.failing.reset(); };
                                  world.window->unload(UnloadMode::Code);
                                  const bool isRemoved = world.notificationArea.messages.back() == 2;
                                  world.notificationArea.failing.reset();
                                  return {isRemoved, world.window->state().config == nullptr};
                              }};

} // namespace
} // namespace app
