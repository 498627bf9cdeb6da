// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/audio/PlayerTest.h"

#include <QAccessible>

namespace audio {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    sound.position = 5; // a fraction that is rounded
    tick();
    EXPECT_EQ(slider->text(QAccessible::Value), QStringLiteral("0:05 of 0:48"));
    player->StopPlay();
    EXPECT_EQ(slider->text(QAccessible::Value), QString());
    EXPECT_EQ(slider->valueInterface()->currentValue().toDouble(), 0);
}

TEST_F(PlayerTest, SpeaksTheLengthToTheSecondFromTheFirstOneOn) {
    QAccessibleInterface* slider = QAccessible::queryAccessibleInterface(player.get());
    ASSERT_NE(slider, nullptr);
    play();
    sound.duration = 600;
    for (const double seconds : {0.0, 0.5, 0.9}) {
        sound.position = seconds;
        tick();
        EXPECT_EQ(slider->text(QAccessible::Value), QStringLiteral("0:00 of 10:00"));
    }
}

TEST_F(PlayerTest, TellsAssistiveProgramsWholePercentsAndOnceThatThePositionIsGone) {
    QAccessibleInterface* slider = QAccessible::queryAccessibleInterface(player.get());
    ASSERT_NE(slider, nullptr);
    std::vector<double> told;
    QObject::connect(player.get(), &ctlAudio::positionTold,
                     [&] { told.push_back(slider->valueInterface()->currentValue().toDouble()); });
    play();
    for (const double seconds : {5.0, 5.05, 5.1}) {
        sound.position = seconds;
        tick();
    }
    EXPECT_THAT(told, ElementsAre(50, 51));
    player->StopPlay();
    player->StopPlay();
    EXPECT_THAT(told, ElementsAre(50, 51, 0));
    play();
    sound.position = 5.1;
    sound.isRunning = false;
    sound.ending = mediagraph::EventCode::Complete;
    tick();
    EXPECT_THAT(told, ElementsAre(50, 51, 0, 0));
}

TEST_F(PlayerTest, LeavesOtherKeysToItsWindow) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(player.get(), &key);
    EXPECT_FALSE(key.isAccepted());
}

TEST_F(PlayerTest, ShowsWhetherItHasTheFocus) {
    player->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(player.get()));
    player->setAttribute(Qt::WA_KeyboardFocusChange); // as Tab does
    player->setFocus();
    const QImage focused = player->grab().toImage();
    player->clearFocus();
    EXPECT_NE(player->grab().toImage(), focused);
}

TEST_F(PlayerTest, IsDrawnAnewInTheColoursOfAnotherPalette) {
    useRecordedSurface();
    surface->log.clear();
    player->setPalette(QPalette(Qt::black));
    EXPECT_THAT(surface->log, testing::Contains("Cls"));
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

// The track is 4,4 to 396,11; its edge is the line around it.
TEST_F(PlayerTest, ShowsTheTracksEdgeToThePixelWhileThereIsAPosition) {
    QPalette colours;
    colours.setColor(QPalette::Dark, Qt::blue);
    colours.setColor(QPalette::Light, Qt::red);
    colours.setColor(QPalette::Window, Qt::gray);
    player->setPalette(colours);
    const auto row = [this](int y) {
        const QImage shown = player->grab().toImage();
        std::string text;
        for (const int x : {2, 3, 4, 395, 396, 397}) {
            const QColor colour = shown.pixelColor(x, y);
            text += colour == Qt::blue ? 'd' : colour == Qt::red ? 'l' : colour == Qt::gray ? '.' : 't';
        }
        return text;
    };
    EXPECT_EQ(row(3), "......");
    play();
    sound.position = 5;
    tick();
    EXPECT_EQ(row(2), "......");
    EXPECT_EQ(row(3), ".dddl.");
    EXPECT_EQ(row(4), ".dttl.");
    EXPECT_EQ(row(10), ".dttl.");
    EXPECT_EQ(row(11), ".llll.");
    EXPECT_EQ(row(12), "......");
    player->StopPlay();
    EXPECT_EQ(row(3), "......");
}

} // namespace
} // namespace audio
