// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "resources/StringTable.h"
#include "tests/audio/PlayerTest.h"

#include <functional>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(PlayerTest, PlaysAFileAndTellsItsState) {
    play();
    EXPECT_TRUE(player->IsPlaying());
    EXPECT_FALSE(player->IsPaused());
    EXPECT_TRUE(player->HasFile());
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(part("lblPos").isVisible());
}

TEST_F(PlayerTest, MissingFileIsToldCountsAsSuccessAndChangesNothing) {
    EXPECT_TRUE(player->PlayWave(R"(\\srv01\Quillamar_0$\MBX\12\nowhere.wav)"));
    EXPECT_THAT(messageBoxes.boxes,
                ElementsAre(data::RecordedBoxes::Box{"The audio file could not be found.",
                                                     forms::kInformation, "Audio Playback"}));
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(player->IsPlaying());
    play();
    player->PlayWave("nowhere");
    EXPECT_TRUE(player->IsPlaying());
    EXPECT_EQ(changes, 1);
}

TEST_F(PlayerTest, TellsAMissingFileInGerman) {
    resources::setLanguage(resources::Language::German);
    player->PlayWave("nowhere");
    resources::setLanguage(resources::Language::English);
    ASSERT_EQ(messageBoxes.boxes.size(), 1U);
    EXPECT_EQ(messageBoxes.boxes[0].text, "Die Audio-Datei konnte nicht gefunden werden.");
    EXPECT_EQ(messageBoxes.boxes[0].title, "Audio-Wiedergabe");
}

TEST_F(PlayerTest, AnswersWhatTheEngineAnswers) {
    sound.fail("Connect");
    EXPECT_FALSE(player->PlayWave(kFile));
    EXPECT_EQ(changes, 1);
}

TEST_F(PlayerTest, EachCommandReachesTheEngineAndTellsTheState) {
    play();
    sound.position = 3;
    sound.takeLog();
    player->Forward();
    EXPECT_EQ(lastMove(), "CurrentPosition = 4");
    player->Backward();
    EXPECT_EQ(lastMove(), "CurrentPosition = 3");
    player->Pause();
    EXPECT_TRUE(player->IsPaused());
    EXPECT_TRUE(player->IsPlaying());
    player->StopPlay();
    EXPECT_FALSE(player->IsPlaying());
    EXPECT_FALSE(player->HasFile());
    EXPECT_EQ(changes, 6); // the stop's PlayDone tells it as well
}

TEST_F(PlayerTest, EachCommandDrawsIt) {
    useRecordedSurface();
    play();
    const auto draws = [this](const std::function<void()>& command) {
        surface->log.clear();
        command();
        return testing::Value(surface->log, testing::Contains("Cls"));
    };
    EXPECT_TRUE(draws([this] { player->Forward(); }));
    EXPECT_TRUE(draws([this] { player->Backward(); }));
    EXPECT_TRUE(draws([this] { player->Pause(); }));
    EXPECT_TRUE(draws([this] { player->StopPlay(); }));
}

TEST_F(PlayerTest, MarkerIsHiddenAtTheEndOfTheFile) {
    play();
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::Complete;
    changes = 0;
    tick();
    EXPECT_FALSE(player->IsPlaying());
    EXPECT_FALSE(part("lblPos").isVisible());
    EXPECT_EQ(changes, 1);
}

TEST_F(PlayerTest, ItsOwnTimerHasItsIntervalAndWakesNobody) {
    ASSERT_NE(player->timer(), nullptr);
    EXPECT_EQ(player->timer()->Interval(), 200);
    EXPECT_FALSE(player->timer()->isTicking());
    play();
    EXPECT_FALSE(player->timer()->isTicking());
}

TEST_F(PlayerTest, UnInitWindsTheEngineDownForHalfASecondAndLetsItGo) {
    play();
    slept.clear();
    player->UnInit();
    EXPECT_EQ(slept, std::vector<std::int32_t>(10, 50));
    EXPECT_TRUE(wave.expired());
    EXPECT_EQ(player->timer(), nullptr);
    EXPECT_FALSE(player->IsPlaying());
    EXPECT_FALSE(player->IsPaused());
    EXPECT_FALSE(player->HasFile());
    slept.clear();
    player->UnInit();
    EXPECT_THAT(slept, IsEmpty());
}

TEST_F(PlayerTest, UnInitLetsWaitingEventsRunBeforeItWindsDown) {
    play();
    slept.clear();
    bool isBefore = false;
    QMetaObject::invokeMethod(
        player.get(), [&] { isBefore = slept.empty(); }, Qt::QueuedConnection);
    player->UnInit();
    EXPECT_TRUE(isBefore);
}

TEST_F(PlayerTest, CommandsWithoutAnEngineOnlyTellTheState) {
    player->UnInit();
    sound.takeLog();
    changes = 0;
    player->Pause();
    player->StopPlay();
    player->Forward();
    player->Backward();
    EXPECT_FALSE(player->PlayWave(kFile));
    EXPECT_EQ(changes, 5);
    EXPECT_THAT(sound.takeLog(), IsEmpty());
}

TEST_F(PlayerTest, PlayerThatGoesLetsItsEngineGo) {
    play();
    player.reset();
    EXPECT_TRUE(wave.expired());
}

TEST_F(PlayerTest, EngineThatSomebodyKeepsIsStoppedWhenThePlayerEnds) {
    play();
    const auto kept = wave.lock();
    player->UnInit();
    EXPECT_FALSE(kept->HasFile());
    EXPECT_EQ(kept->Timer1().Interval(), 0);
}

TEST_F(PlayerTest, RefreshPaintsItAgain) {
    useRecordedSurface();
    EXPECT_TRUE(paintsAgain(*player, *surface, [this] { player->Refresh(); }));
}

TEST_F(PlayerTest, HasAHandleAndTheHeightOfTwoHundredAndTwentyFiveTwips) {
    EXPECT_NE(player->hWnd(), 0U);
    EXPECT_EQ(player->sizeHint().height(), 15);
}

} // namespace
} // namespace audio
