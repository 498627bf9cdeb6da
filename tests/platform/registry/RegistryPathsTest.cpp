// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/registry/RegistryPaths.h"

#include <gtest/gtest.h>

#include <map>

namespace registry {
namespace {

RegistryPaths pathsOf(const std::map<std::string, std::string>& variables) {
    return pathsFromEnvironment([&](const char* name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(RegistryPaths, FollowsTheConfigurationFolders) {
    const RegistryPaths paths =
        pathsOf({{"XDG_CONFIG_HOME", "/cfg"}, {"HOME", "/home/u"}, {"XDG_CONFIG_DIRS", "/one:/two"}});
    EXPECT_EQ(paths.currentUser, "/cfg/Corvantis/Quillamar/registry.reg");
    EXPECT_EQ(paths.localMachine, (std::vector<std::string>{"/one/Corvantis/Quillamar/registry.reg",
                                                            "/two/Corvantis/Quillamar/registry.reg"}));
}

TEST(RegistryPaths, HasTheUsualDefaults) {
    const RegistryPaths paths = pathsOf({{"HOME", "/home/u"}});
    EXPECT_EQ(paths.currentUser, "/home/u/.config/Corvantis/Quillamar/registry.reg");
    EXPECT_EQ(paths.localMachine, std::vector<std::string>{"/etc/xdg/Corvantis/Quillamar/registry.reg"});
}

TEST(RegistryPaths, EmptyAndRelativeFoldersCountAsNotSet) {
    const RegistryPaths paths =
        pathsOf({{"XDG_CONFIG_HOME", "cfg"}, {"HOME", "/home/u"}, {"XDG_CONFIG_DIRS", ":etc::/two:"}});
    EXPECT_EQ(paths.currentUser, "/home/u/.config/Corvantis/Quillamar/registry.reg");
    EXPECT_EQ(paths.localMachine, std::vector<std::string>{"/two/Corvantis/Quillamar/registry.reg"});
    EXPECT_EQ(pathsOf({{"XDG_CONFIG_DIRS", ""}}).localMachine,
              std::vector<std::string>{"/etc/xdg/Corvantis/Quillamar/registry.reg"});
}

TEST(RegistryPaths, WithoutAHomeThereIsNoUsersFile) {
    EXPECT_EQ(pathsOf({}).currentUser, "");
}

} // namespace
} // namespace registry
