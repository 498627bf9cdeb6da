// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/SystemInformation.h"

#include "tests/dialogs/AboutWorld.h"

#include <gtest/gtest.h>

namespace dialogs {
namespace {

using Started = std::vector<std::string>;

class SystemInformationTest : public testing::Test {
protected:
    // A folder with the program of the second look-up in it.
    std::string location() const {
        world.folder.put(world.folder.folder() / "tools" / "MSINFO32.EXE", "");
        return world.folder.folder() / "tools";
    }
    void run() { world.systemInformation().StartSysInfo(); }
    void expectOnlyTheMessage() const {
        EXPECT_EQ(world.messageBoxes.boxes, (std::vector<data::RecordedBoxes::Box>{
                                                {"System Information Is Unavailable At This Time", 0, ""}}));
    }

    AboutWorld world;
};

TEST_F(SystemInformationTest, StartsTheProgramOfTheFirstLookUp) {
    world.putMachine(std::string(AboutWorld::kMsInfo) + "\"PATH\"=\"/usr/bin/info\"\n" +
                     AboutWorld::kLocation + "\"MSINFO\"=\"" + location() + "\"\n");
    run();
    EXPECT_EQ(world.started, Started{"/usr/bin/info"});
    EXPECT_TRUE(world.messageBoxes.boxes.empty());
}

TEST_F(SystemInformationTest, StartsTheProgramInTheFolderOfTheSecondLookUp) {
    world.putMachine(std::string(AboutWorld::kLocation) + "\"MSINFO\"=\"" + location() + "\"\n");
    run();
    EXPECT_EQ(world.started, Started{location() + "/MSINFO32.EXE"});
    EXPECT_TRUE(world.messageBoxes.boxes.empty());
}

TEST_F(SystemInformationTest, ShowsOnlyTheMessageWithNeitherValue) {
    run();
    EXPECT_TRUE(world.started.empty());
    expectOnlyTheMessage();
}

TEST_F(SystemInformationTest, ShowsOnlyTheMessageWhenTheFolderLacksTheProgram) {
    world.putMachine(std::string(AboutWorld::kLocation) + "\"MSINFO\"=\"" + world.folder.folder().string() +
                     "\"\n");
    run();
    EXPECT_TRUE(world.started.empty());
    expectOnlyTheMessage();
}

TEST_F(SystemInformationTest, ShowsOnlyTheMessageWhenTheProgramDoesNotStart) {
    world.putMachine(std::string(AboutWorld::kMsInfo) + "\"PATH\"=\"C:\\\\info.exe\"\n" +
                     AboutWorld::kLocation + "\"MSINFO\"=\"" + location() + "\"\n");
    world.failing = true;
    run();
    EXPECT_EQ(world.started, Started{"C:\\info.exe"}); // found, so the second look-up is not made
    expectOnlyTheMessage();
}

TEST_F(SystemInformationTest, ShowsOnlyTheMessageToAUserWithoutFullAccess) {
    world.putMachine(std::string(AboutWorld::kMsInfo) + "\"PATH\"=\"/usr/bin/info\"\n" +
                     AboutWorld::kLocation + "\"MSINFO\"=\"" + location() + "\"\n");
    world.calls.isOrdinaryUser = true;
    run();
    EXPECT_TRUE(world.started.empty());
    expectOnlyTheMessage();
}

} // namespace
} // namespace dialogs
