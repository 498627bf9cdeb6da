// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the player goes on when the window is hidden, and ends with the program.
#include "tests/app/MainPlayerTest.h"

#include <QMenu>

namespace app {
namespace {

using testing::IsEmpty;

// The wait for the message is cancelled then, so that the play fails.
TEST_F(MainPlayerTest, ProgramThatEndsWhileAMessageIsReadSaysNothing) {
    loadOne();
    sound.onCall = [this](const std::string& call) {
        if (call.starts_with("Filename "))
            window->unload(UnloadMode::SessionEnd);
    };
    sound.fail("Filename", basic::kDeviceIoError);
    play();
    EXPECT_TRUE(window->isUnloaded());
    EXPECT_THAT(messageBoxes.boxes, IsEmpty());
}

TEST_F(MainPlayerTest, UnloadWindsThePlayerDownBeforeAnythingElseGoes) {
    loadOne();
    play();
    std::vector<std::int32_t> slept;
    onSleep = [&](std::int32_t ms) {
        slept.push_back(ms);
        EXPECT_EQ(notificationArea.messages.back(), 1U) << "the icon is still there";
        EXPECT_NE(window->state().config, nullptr);
        EXPECT_FALSE(player().IsPlaying());
    };
    notificationArea.messages = {1};
    window->unload(UnloadMode::Code);
    EXPECT_EQ(slept, std::vector<std::int32_t>(10, 50));
    EXPECT_EQ(notificationArea.messages.back(), 2U);
    EXPECT_EQ(window->ab().Bands("Status").Tools("miSProgress").Custom(), nullptr);
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(MainPlayerTest, UnloadIsToldBeforeItLetsEventsRun) {
    loadOne();
    bool isTold = false;
    bool hasSlept = false;
    QObject::connect(&*window, &frmMain::unloading, [&] { isTold = true; });
    onSleep = [&](std::int32_t) {
        hasSlept = true;
        EXPECT_TRUE(isTold);
    };
    window->unload(UnloadMode::SessionEnd);
    EXPECT_TRUE(hasSlept);
}

TEST_F(MainPlayerTest, CommandsAndTicksDuringTheUnloadDoNothing) {
    loadOne();
    select("KC1");
    onSleep = [&](std::int32_t) {
        sound.takeLog();
        window->ab_ToolClick("miSPlay");
        mailbox(12).append(1);
        tick();
        EXPECT_THAT(sound.takeLog(), IsEmpty());
        EXPECT_EQ(popup(), nullptr);
    };
    window->unload(UnloadMode::Code);
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(MainPlayerTest, PopupAndTrayMenuDuringTheUnloadDoNothing) {
    loadOne();
    mailbox(12).append({"C3", "Cleo", 0});
    tick();
    ASSERT_NE(popup(), nullptr);
    mailbox(12).append({"C4", "Dora", 0});
    const auto rows = column(0).size();
    int sleeps = 0;
    onSleep = [&](std::int32_t) {
        EXPECT_TRUE(popup() != nullptr || sleeps > 0); // it goes later than the first of them
        ++sleeps;
        if (popup() != nullptr)
            clickPopup("Label2");
        notificationArea.menu->actions().at(0)->trigger();
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(column(0).size(), rows);
    };
    window->unload(UnloadMode::Code);
    EXPECT_GT(sleeps, 0);
    EXPECT_EQ(popup(), nullptr);
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(MainPlayerTest, HiddenWindowPlaysOn) {
    loadOne();
    window->showWindow();
    play();
    window->close();
    EXPECT_TRUE(player().IsPlaying());
    window->ab_ToolClick("miSStop");
    EXPECT_FALSE(player().IsPlaying());
}

} // namespace
} // namespace app
