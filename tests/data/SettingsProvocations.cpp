// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/clsConfig.h"
#include "tests/data/SettingsWorld.h"
#include "tests/errors/Provocation.h"

#include <cerrno>

namespace data {
namespace {

using errors::CannotFail;
using errors::Effect;
using errors::Provocation;
using errors::Trial;

const CannotFail kClassInitialize{"clsConfig", "Class_Initialize", "it assigns a number"};
const CannotFail kClear{"clsConfig", "Clear", "an empty collection takes no memory"};
const CannotFail kGetIconID{"clsMailbox", "GetIconID", "it compares a text and assigns a number"};

std::string clientKey(const std::string& serverName) {
    return "[HKEY_CURRENT_USER\\Software\\Corvantis\\Quillamar\\1.0\\Client]\n\"ServerName\"=" + serverName +
           "\n\"PollInterval\"=dword:00000384\n";
}

const Provocation kLoadConfig{"clsConfig", "LoadConfig", basic::kTypeMismatch, [](Trial& trial) -> Effect {
                                  SettingsWorld world;
                                  world.putUser(clientKey("hex:01,02"));
                                  trial.repair = [&] { world.putUser(clientKey("\"srv01\"")); };
                                  clsConfig config{world.registry, world.boxes, trial};
                                  config.LoadConfig();
                                  return {config.ServerName == "srv01", config.PollInterval == 900};
                              }};

class FullDisk final : public registry::SystemCalls {
public:
    ssize_t write(int file, const void* from, std::size_t size) override {
        if (!isFull)
            return SystemCalls::write(file, from, size);
        errno = ENOSPC;
        return -1;
    }
    bool isFull = true;
};

// The file is replaced as a whole by the last statement.
const Provocation kSaveConfig{"clsConfig", "SaveConfig", basic::kPathFileAccess, [](Trial& trial) -> Effect {
                                  const SettingsWorld world;
                                  FullDisk disk;
                                  trial.repair = [&] { disk.isFull = false; };
                                  registry::Registry registry{world.folder.paths(), disk};
                                  RecordedBoxes boxes;
                                  clsConfig config{registry, boxes, trial};
                                  config.SaveConfig();
                                  return {!world.folder.content(world.folder.userFile()).empty()};
                              }};

} // namespace
} // namespace data
