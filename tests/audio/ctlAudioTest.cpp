// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/ctlAudio.h"

#include "resources/StringTable.h"
#include "tests/audio/AudioWorld.h"
#include "tests/audio/RecordedSurface.h"

#include <QAccessible>
#include <QFrame>
#include <QTest>

#include <gmock/gmock.h>

#include <set>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A share that has the files it is told.
class ListedFiles final : public share::FileSystemObject {
public:
    bool FileExists(std::string_view path) override {
        if (fails)
            throw basic::RuntimeError(basic::kDeviceIoError);
        return files.contains(std::string(path));
    }
    bool FolderExists(std::string_view) override { return false; }
    std::vector<std::string> SubFolders(std::string_view) override { return {}; }
    void DeleteFile(std::string_view, bool) override {}
    std::unique_ptr<share::File> openFile(std::string_view, share::OpenMode) override { return nullptr; }

    std::set<std::string> files;
    bool fails = false;
};

class PlayerTest : public AudioWorld {
protected:
    PlayerTest() {
        files.files.insert(kFile);
        player = std::make_unique<ctlAudio>(services());
        QObject::connect(player.get(), &ctlAudio::StateChanged, [this] { ++changes; });
        player->resize(400, 15);
        player->show();
    }
    PlayerServices services() {
        return {errorHandler, messageBoxes, files, devices, [this] {
                    auto made = newWave();
                    wave = made;
                    return made;
                }};
    }
    // The player with a surface that is written down.
    void useRecordedSurface() {
        PlayerServices with = services();
        with.makeSurface = [this](const QWidget&) {
            auto made = std::make_unique<RecordedSurface>(6000, 225);
            surface = made.get();
            return made;
        };
        player = std::make_unique<ctlAudio>(with);
        QObject::connect(player.get(), &ctlAudio::StateChanged, [this] { ++changes; });
    }
    void play() { ASSERT_TRUE(player->PlayWave(kFile)); }
    void tick() { Q_EMIT wave.lock()->Timer1().ThatTime(); }
    QWidget& part(const char* name) { return *player->findChild<QWidget*>(QString::fromLatin1(name)); }
    std::string lastMove() {
        std::string move;
        for (const std::string& call : sound.takeLog())
            if (call.starts_with("CurrentPosition ="))
                move = call;
        return move;
    }
    void click(int x, int y = 7) {
        sound.takeLog();
        QTest::mouseClick(player.get(), Qt::LeftButton, {}, {x, y});
    }
    std::string only() const {
        return errorHandler.reports.size() == 1
                   ? errorHandler.reports[0].module + " " + errorHandler.reports[0].procedure
                   : "(" + std::to_string(errorHandler.reports.size()) + " reports)";
    }

    ListedFiles files;
    std::weak_ptr<ReachableWave> wave;
    RecordedSurface* surface = nullptr;
    int changes = 0;
    std::unique_ptr<ctlAudio> player;
};

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

TEST_F(PlayerTest, TrackAndMarkerLieWhereTheLayoutPutsThem) {
    EXPECT_EQ(part("picTop").geometry(), QRect(4, 4, 400 - 8, 7));
    EXPECT_EQ(part("lblPos").geometry(), QRect(0, 1, 8, 13));
    EXPECT_EQ(player->height(), 15);
    player->resize(250, 15);
    EXPECT_EQ(part("picTop").geometry(), QRect(4, 4, 250 - 8, 7));
}

TEST_F(PlayerTest, MarkerMovesWithTheFraction) {
    play();
    sound.position = 5;
    tick();
    EXPECT_EQ(player->markerPlace().Left().value, (6000 - 120 - 120) / 2);
    EXPECT_EQ(part("lblPos").x(), 192);
}

TEST_F(PlayerTest, MarkerAtTheEndLeavesItsWidthAndTheMargins) {
    play();
    sound.position = 10;
    tick();
    EXPECT_EQ(player->markerPlace().Left().value, 6000 - 120 - 120);
}

TEST_F(PlayerTest, FractionThatIsTooLargeForTheLayoutMovesNothing) {
    play();
    sound.position = 5;
    tick();
    sound.position = 1e12;
    sound.duration = 0.1;
    tick();
    EXPECT_EQ(player->markerPlace().Left().value, 2880);
    EXPECT_THAT(errorHandler.reports, IsEmpty());
}

TEST_F(PlayerTest, ClickOnTheTrackWhileStoppedDoesNothing) {
    click(100);
    EXPECT_EQ(lastMove(), "");
    play();
    player->StopPlay();
    click(100);
    EXPECT_EQ(lastMove(), "");
}

// The track is 392 pixels wide, the marker 8: a click at 4 + 96 is a quarter.
TEST_F(PlayerTest, ClickOnTheTrackGoesToItsFraction) {
    play();
    click(4 + 96);
    EXPECT_EQ(lastMove(), "CurrentPosition = 2.5");
    player->Pause();
    click(4 + 192);
    EXPECT_EQ(lastMove(), "CurrentPosition = 5");
}

TEST_F(PlayerTest, ClickLeftOfTheTrackIsANegativeFractionAndOneBesideItCountsTheSame) {
    play();
    click(0, 1);
    EXPECT_EQ(lastMove(), "CurrentPosition = -0.104167");
    click(4 + 96, 14);
    EXPECT_EQ(lastMove(), "CurrentPosition = 2.5");
    click(399);
    EXPECT_EQ(lastMove(), "CurrentPosition = 10.2865");
}

TEST_F(PlayerTest, ClickOnTheMarkerSeeksNothing) {
    play();
    sound.takeLog();
    QTest::mouseClick(&part("lblPos"), Qt::LeftButton);
    EXPECT_EQ(lastMove(), "");
}

TEST_F(PlayerTest, PressThatIsLetGoElsewhereIsNoClick) {
    play();
    sound.takeLog();
    QTest::mousePress(player.get(), Qt::LeftButton, {}, {100, 7});
    QTest::mouseRelease(player.get(), Qt::LeftButton, {}, {100, 70});
    QTest::mouseClick(player.get(), Qt::RightButton, {}, {100, 7});
    EXPECT_EQ(lastMove(), "");
}

TEST_F(PlayerTest, ArrowKeysStepAndTheEndsAreReachedByTheirKeys) {
    play();
    sound.position = 3;
    sound.takeLog();
    QTest::keyClick(player.get(), Qt::Key_Right);
    EXPECT_EQ(lastMove(), "CurrentPosition = 4");
    QTest::keyClick(player.get(), Qt::Key_Left);
    EXPECT_EQ(lastMove(), "CurrentPosition = 3");
    QTest::keyClick(player.get(), Qt::Key_End);
    EXPECT_EQ(lastMove(), "CurrentPosition = 10");
    QTest::keyClick(player.get(), Qt::Key_Home);
    EXPECT_EQ(lastMove(), "CurrentPosition = 0");
    EXPECT_EQ(player->focusPolicy(), Qt::StrongFocus);
}

TEST_F(PlayerTest, IsASliderWithANameAndAValueToAssistivePrograms) {
    QAccessibleInterface* slider = QAccessible::queryAccessibleInterface(player.get());
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    EXPECT_EQ(slider->text(QAccessible::Name), QStringLiteral("Position"));
    EXPECT_EQ(slider->text(QAccessible::Value), QString());
    EXPECT_EQ(slider->childCount(), 0);
    ASSERT_NE(slider->valueInterface(), nullptr);
    EXPECT_EQ(slider->valueInterface()->currentValue().toDouble(), 0);
    play();
    sound.position = 12;
    sound.duration = 48;
    tick();
    EXPECT_EQ(slider->text(QAccessible::Value), QStringLiteral("0:12 of 0:48"));
    EXPECT_EQ(slider->valueInterface()->currentValue().toDouble(), 25);
    EXPECT_EQ(slider->valueInterface()->maximumValue().toInt(), 100);
    sound.takeLog();
    slider->valueInterface()->setCurrentValue(50);
    EXPECT_EQ(lastMove(), "CurrentPosition = 24");
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

TEST_F(PlayerTest, DrawsTheTracksEdgeOnlyWhileThereIsAPosition) {
    useRecordedSurface();
    player->resize(400, 15);
    player->show();
    surface->log.clear();
    player->Draw();
    EXPECT_THAT(surface->log, ElementsAre("Cls"));
    surface->log.clear();
    play();
    EXPECT_THAT(surface->log, ElementsAre("Cls", "DrawEdge 3,3-397,12 edge 2 flags 15", "clip 1,1-399,14"));
    surface->log.clear();
    player->Draw();
    EXPECT_THAT(surface->log,
                ElementsAre("no clip", "Cls", "DrawEdge 3,3-397,12 edge 2 flags 15", "clip 1,1-399,14"));
}

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

TEST_F(PlayerTest, RefreshAndHandleAreThere) {
    player->Refresh();
    EXPECT_NE(player->hWnd(), 0U);
}

} // namespace
} // namespace audio
