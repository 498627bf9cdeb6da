// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The player in the main window: which file a command plays.
#include "app/ChosenMailbox.h"
#include "tests/app/MainPlayerTest.h"

#include <QToolBar>

#include <filesystem>
#include <optional>

namespace app {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

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

} // namespace
} // namespace app
