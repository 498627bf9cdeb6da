// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/PlayerTest.h"

namespace audio {
namespace {

using testing::IsEmpty;

TEST_F(PlayerTest, DrawingHelpersReportUnderThePlayersName) {
    useRecordedSurface();
    play();
    for (const char* call : {"Cls", "DrawEdge", "clip"}) {
        surface->fails = call;
        player->Draw();
    }
    ASSERT_EQ(errorHandler.reports.size(), 3U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "Draw");
    EXPECT_EQ(errorHandler.reports[1].procedure, "DrawLabelEdge");
    EXPECT_EQ(errorHandler.reports[2].procedure, "EvaluateSize2");
    for (const auto& report : errorHandler.reports)
        EXPECT_EQ(report.module, "ctlAudio");
}

TEST_F(PlayerTest, EngineThatCannotBeMadeIsReportedAndMissing) {
    PlayerServices without = services();
    without.newWave = []() -> std::shared_ptr<clsWave> { throw basic::RuntimeError(basic::kOutOfMemory); };
    ctlAudio silent{without};
    EXPECT_EQ(only(), "ctlAudio UserControl_Initialize");
    EXPECT_FALSE(silent.IsPlaying());
    EXPECT_FALSE(silent.PlayWave(kFile));
}

TEST_F(PlayerTest, ShareThatFailsIsReportedByThePlay) {
    files.fails = true;
    EXPECT_FALSE(player->PlayWave(kFile));
    EXPECT_EQ(only(), "ctlAudio PlayWave");
}

TEST_F(PlayerTest, CommandsReportUnderTheirNames) {
    play();
    sound.position = 3;
    sound.fail("Pause");
    player->Pause();
    EXPECT_EQ(only(), "ctlAudio Pause");
    errorHandler.reports.clear();
    sound.fail("CurrentPosition");
    player->Backward();
    EXPECT_EQ(only(), "ctlAudio Backward");
    errorHandler.reports.clear();
    sound.fail("Duration");
    click(100);
    EXPECT_EQ(only(), "ctlAudio picTop_Click");
}

TEST_F(PlayerTest, ForwardHasNoTrapAndItsKeyReportsForIt) {
    play();
    sound.position = 3;
    sound.fail("CurrentPosition");
    EXPECT_THROW(player->Forward(), basic::RuntimeError);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
    sound.fail("CurrentPosition");
    QTest::keyClick(player.get(), Qt::Key_Right);
    EXPECT_EQ(only(), "ctlAudio UserControl_KeyDown");
}

TEST_F(PlayerTest, HandlerThatFailsIsReportedUnderWhatToldIt) {
    play();
    QObject::connect(player.get(), &ctlAudio::StateChanged,
                     [] { throw basic::RuntimeError(basic::kOutOfMemory); });
    Q_EMIT wave.lock()->PlayDone();
    EXPECT_EQ(only(), "ctlAudio WaveObject_PlayDone");
    errorHandler.reports.clear();
    player->StopPlay();
    ASSERT_EQ(errorHandler.reports.size(), 2U);
    EXPECT_EQ(errorHandler.reports[0].procedure, "WaveObject_PlayDone");
    EXPECT_EQ(errorHandler.reports[1].procedure, "StopPlay");
}

TEST_F(PlayerTest, ProgressReportsUnderItsName) {
    useRecordedSurface();
    play();
    surface->fails = "ScaleWidth";
    tick();
    ASSERT_FALSE(errorHandler.reports.empty());
    EXPECT_EQ(errorHandler.reports[0].module, "ctlAudio");
    EXPECT_EQ(errorHandler.reports[0].procedure, "WaveObject_Progress");
}

} // namespace
} // namespace audio
