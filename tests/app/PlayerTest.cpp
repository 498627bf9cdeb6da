// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The player in the main window: which file a command plays, what the buttons show, and how it ends.
#include "app/ChosenMailbox.h"
#include "tests/app/MainWorld.h"
#include "tests/app/PlayerButtons.h"

#include <QTest>
#include <QToolBar>

#include <gmock/gmock.h>

namespace app {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class MainPlayerTest : public MainWorld {
protected:
    // A window over mailbox 12 with a call C1 that has a message, and C2 that has none.
    void loadOne() {
        configure({12});
        mailbox(12).append({"C1", "Anna", 7});
        mailbox(12).append({"C2", "Ben", 0});
        makeSound(12, "C1.wav");
        load();
        sound.takeLog();
    }
    void loadTwo() {
        configure({15, 12});
        for (const int id : {15, 12}) {
            mailbox(id).append({"C1", "Anna", 7});
            makeSound(id, "C1.wav");
        }
        load();
        sound.takeLog();
    }
    void select(const char* key) { list().SetSelectedItem(list().ListItems().Item(key)); }
    void play() {
        select("KC1");
        window->ab_ToolClick("miSPlay");
    }
    std::string buttons() { return playerButtons(window->ab()); }
    // The only place where the message is played from, as the engine got it.
    std::string played() {
        std::string file;
        for (const std::string& call : sound.takeLog())
            if (call.starts_with("Filename "))
                file = call.substr(9);
        return file;
    }
    std::vector<std::string> shown() const {
        std::vector<std::string> texts;
        for (const auto& box : messageBoxes.boxes)
            texts.push_back(box.text);
        return texts;
    }
};

TEST_F(MainPlayerTest, PlayerSitsInTheStatusBand) {
    loadOne();
    EXPECT_EQ(window->ab().Bands("Status").Tools("miSProgress").Custom(), &player());
    EXPECT_TRUE(window->findChild<QToolBar*>()->isAncestorOf(&player()));
    window->state().redock = true;
    tick();
    EXPECT_FALSE(window->state().redock);
    EXPECT_TRUE(window->findChild<QToolBar*>()->isAncestorOf(&player()));
}

TEST_F(MainPlayerTest, DoubleClickPlaysTheMessageOfTheSelectedCall) {
    loadOne();
    select("KC1");
    Q_EMIT list().DblClick();
    EXPECT_EQ(played(), R"(\\srv01\Quillamar_0$\MBX\12\C1.wav)");
    EXPECT_TRUE(player().IsPlaying());
    EXPECT_THAT(messageBoxes.boxes, IsEmpty());
}

TEST_F(MainPlayerTest, DoubleClickWithoutASelectedCallDoesNothing) {
    loadOne();
    Q_EMIT list().DblClick();
    window->ab_ToolClick("miSPlay");
    EXPECT_THAT(sound.takeLog(), IsEmpty());
    EXPECT_THAT(messageBoxes.boxes, IsEmpty());
}

TEST_F(MainPlayerTest, CallWithoutAMessageIsNotPlayedAndNothingIsSaid) {
    loadOne();
    makeSound(12, "C2.wav");
    select("KC2");
    window->ab_ToolClick("miSPlay");
    EXPECT_THAT(sound.takeLog(), IsEmpty());
    EXPECT_THAT(messageBoxes.boxes, IsEmpty());
}

// A strip with tabs always has a selected one, so the rule is asked directly.
TEST_F(MainPlayerTest, SeveralTabsAndNoneSelectedPlaysNothing) {
    loadTwo();
    const auto& config = *window->state().config;
    const std::optional<forms::Tab> selected = tabStrip().SelectedItem();
    EXPECT_EQ(chosenMailbox(2, std::nullopt, config), std::nullopt);
    EXPECT_EQ(chosenMailbox(2, selected, config), 15);
    EXPECT_EQ(chosenMailbox(1, selected, config), 15);
    EXPECT_EQ(chosenMailbox(0, std::nullopt, config), 15);
}

TEST_F(MainPlayerTest, SelectedTabsMailboxIsPlayedFrom) {
    loadTwo();
    play();
    EXPECT_EQ(played(), R"(\\srv01\Quillamar_0$\MBX\15\C1.wav)");
    tabStrip().SetSelectedItem(2);
    window->LoadList();
    play();
    EXPECT_EQ(played(), R"(\\srv01\Quillamar_0$\MBX\12\C1.wav)");
}

TEST_F(MainPlayerTest, SingleMailboxUsesTheFirstConfiguredOneWhateverTheTab) {
    loadOne();
    tabStrip().Tabs().Add("KEY99", "stray", 1);
    play();
    EXPECT_EQ(played(), R"(\\srv01\Quillamar_0$\MBX\12\C1.wav)");
}

TEST_F(MainPlayerTest, MissingFileIsToldOnceAndNothingElse) {
    loadOne();
    std::filesystem::remove(folder.path("share/MBX/12/C1.wav"));
    play();
    EXPECT_THAT(shown(), ElementsAre("The audio file could not be found."));
    EXPECT_FALSE(player().IsPlaying());
}

TEST_F(MainPlayerTest, HostileCallIDIsAMissingFile) {
    configure({12});
    folder.makeFile("share/secret.wav", "RIFF");
    for (const char* id : {R"(..\..\secret)", "../../secret", R"(C:\secret)", ".."})
        mailbox(12).append({id, "Eve", 7});
    load();
    sound.takeLog();
    for (int row = 1; row <= 4; ++row) {
        list().SetSelectedItem(list().ListItems().Item(row));
        window->ab_ToolClick("miSPlay");
    }
    EXPECT_THAT(shown(),
                testing::AllOf(testing::SizeIs(4), testing::Each("The audio file could not be found.")));
    EXPECT_THAT(sound.takeLog(), IsEmpty());
    EXPECT_TRUE(errorHandler.reports.empty());
}

TEST_F(MainPlayerTest, PlayThatFailsIsSaid) {
    loadOne();
    sound.fail("Connect", basic::kMediaBadFormat);
    play();
    EXPECT_THAT(messageBoxes.boxes,
                ElementsAre(data::RecordedBoxes::Box{"Error playing audio file!", forms::kOkOnly, ""}));
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "clsWave.Playwave");
}

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

TEST_F(MainPlayerTest, FailureOfThePlayCommandIsTheDispatchers) {
    loadOne();
    sound.position = 3;
    play();
    sound.fail("CurrentPosition");
    window->ab_ToolClick("miSFwd");
    ASSERT_EQ(errorHandler.reports.size(), 1U);
    EXPECT_EQ(errorHandler.reports[0].module, "frmMain");
    EXPECT_EQ(errorHandler.reports[0].procedure, "ab_ToolClick");
}

TEST_F(MainPlayerTest, CommandsReachThePlayer) {
    loadOne();
    play();
    sound.position = 3;
    sound.takeLog();
    window->ab_ToolClick("miSFwd");
    EXPECT_THAT(sound.takeLog(), Contains("CurrentPosition = 4"));
    window->ab_ToolClick("miSRew");
    EXPECT_THAT(sound.takeLog(), Contains("CurrentPosition = 3"));
    window->ab_ToolClick("miSPause");
    EXPECT_TRUE(player().IsPaused());
    window->ab_ToolClick("miSPlay");
    EXPECT_FALSE(player().IsPaused());
    window->ab_ToolClick("miSStop");
    EXPECT_FALSE(player().IsPlaying());
    sound.takeLog();
    for (const char* other : {"misplay", "miSplay", "miSFWD"})
        window->ab_ToolClick(other);
    EXPECT_THAT(sound.takeLog(), IsEmpty());
}

TEST_F(MainPlayerTest, ButtonsFollowTheSelectionWhileNothingPlays) {
    loadOne();
    EXPECT_EQ(buttons(), "-----");
    select("KC2");
    window->UpdateButtonStates();
    EXPECT_EQ(buttons(), "-----");
    select("KC1");
    Q_EMIT list().ItemClick(2);
    EXPECT_EQ(buttons(), "+----");
}

TEST_F(MainPlayerTest, ButtonsFollowThePlayer) {
    loadOne();
    play();
    EXPECT_EQ(buttons(), "x++++");
    window->ab_ToolClick("miSPause");
    EXPECT_EQ(buttons(), "++x++");
    window->ab_ToolClick("miSPlay");
    EXPECT_EQ(buttons(), "x++++");
    window->ab_ToolClick("miSStop");
    EXPECT_EQ(buttons(), "+----");
}

TEST_F(MainPlayerTest, ButtonsGoBackAtTheEndOfTheMessage) {
    loadOne();
    play();
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::Complete;
    EXPECT_TRUE(QTest::qWaitFor([this] { return buttons() == "+----"; }));
}

TEST_F(MainPlayerTest, PauseWithoutASelectedMessageLeavesPlayEnabledWhilePlaybackCounts) {
    loadOne();
    play();
    select("KC2");
    window->ab_ToolClick("miSPause");
    EXPECT_EQ(buttons(), "++x++");
    window->ab_ToolClick("miSStop");
    EXPECT_EQ(buttons(), "-----");
}

TEST_F(MainPlayerTest, OnlyTheStatusBandsToolsHaveTheseFlags) {
    loadOne();
    play();
    EXPECT_TRUE(window->ab().Bands("mnuTools").Tools("miSPlay").Enabled());
    EXPECT_FALSE(window->ab().Bands("mnuTools").Tools("miSPlay").Checked());
    window->ab_ToolClick("miSStop");
    EXPECT_TRUE(window->ab().Bands("mnuPopup").Tools("miSPlay").Enabled());
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
