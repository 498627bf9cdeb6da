// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How the details dialog follows the selection, what its buttons do, and what happens when a call cannot be
// read.
#include "dialogs/frmCallDetails.h"
#include "platform/basic/RuntimeError.h"
#include "tests/dialogs/DetailsWorld.h"
#include "tests/errors/RecordingErrorHandler.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace dialogs {
namespace {

using errors::ErrorAction;

class CallDetailsEventsTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* callID : {"A1", "A2", "A3"})
            world.log.append({.callID = callID});
        world.open();
    }
    std::string shownCall() { return world.control<QLabel>("lblCallID").text().toStdString(); }
    bool isEmptyState() { return !world.control<QLabel>("lblNoEvent").isHidden(); }
    void click(const char* button) { world.control<QPushButton>(button).click(); }
    std::string database() const {
        std::ostringstream bytes;
        bytes << std::ifstream(world.log.path(), std::ios::binary).rdbuf();
        return bytes.str();
    }

    errors::RecordingErrorHandler errors;
    DetailsWorld world{errors};
};

TEST_F(CallDetailsEventsTest, HiddenDialogFollowsToo) {
    ASSERT_FALSE(world.dialog->isVisible());
    world.announce("A2");
    EXPECT_EQ(shownCall(), "A2");
}

TEST_F(CallDetailsEventsTest, CallIsLoadedBeforeTheAnnouncementIsThrough) {
    world.dialog->show();
    world.announce("A1");
    EXPECT_EQ(shownCall(), "A1");
    world.announce("A3");
    EXPECT_EQ(shownCall(), "A3");
}

TEST_F(CallDetailsEventsTest, HearsEachCallOnceHoweverOftenItIsShown) {
    world.dialog->Init(world.selection);
    world.dialog->Init(world.selection);
    const auto closed = std::make_shared<jet::Connection>(world.engine);
    world.selection.announce(closed, "A1");
    EXPECT_EQ(errors.reports.size(), 1U);
}

TEST_F(CallDetailsEventsTest, ArrowsAskForTheNeighbours) {
    world.announce("A2");
    click("cmdUp");
    click("cmdDown");
    EXPECT_EQ(world.selection.moves, (std::vector<bool>{false, true}));
}

TEST_F(CallDetailsEventsTest, WithoutAMainWindowTheArrowsDoNothing) {
    world.announce("A2");
    world.dialog->UnInit();
    click("cmdUp");
    click("cmdDown");
    EXPECT_TRUE(world.selection.moves.empty());
    EXPECT_TRUE(errors.reports.empty());
}

TEST_F(CallDetailsEventsTest, UnInitEndsTheFollowingAndLetsTheConnectionGo) {
    const auto connection = world.connect();
    world.selection.announce(connection, "A1");
    EXPECT_EQ(connection.use_count(), 2);
    world.dialog->UnInit();
    EXPECT_EQ(connection.use_count(), 1);
    world.announce("A2");
    EXPECT_EQ(shownCall(), "A1");
}

TEST_F(CallDetailsEventsTest, ReturnPressesTheButtonThatHasTheFocus) {
    world.announce("A2");
    world.dialog->show();
    const auto press = [this](const char* button) {
        world.control<QPushButton>(button).setFocus();
        QTest::keyClick(world.dialog->focusWidget(), Qt::Key_Return);
    };
    press("cmdUp");
    press("cmdDown");
    EXPECT_THAT(world.selection.moves, testing::ElementsAre(false, true));
    press("cmdCopy");
    EXPECT_THAT(world.clipboard.text, testing::HasSubstr("\tA2\r\n"));
    EXPECT_TRUE(world.dialog->isVisible());
    press("Command1");
    EXPECT_FALSE(world.dialog->isVisible());
}

TEST_F(CallDetailsEventsTest, CloseButtonFrameEscapeAndReturnOnlyHide) {
    const auto hides = [this](auto&& close) {
        world.dialog->show();
        close();
        EXPECT_FALSE(world.dialog->isVisible());
        world.announce("A2");
        EXPECT_EQ(shownCall(), "A2");
    };
    hides([this] { click("Command1"); });
    hides([this] { world.dialog->close(); });
    hides([this] { QTest::keyClick(world.dialog.get(), Qt::Key_Escape); });
    hides([this] {
        world.dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(world.dialog.get()));
        QTest::keyClick(world.dialog->focusWidget(), Qt::Key_Return);
    });
}

TEST_F(CallDetailsEventsTest, IsModeless) {
    world.dialog->show();
    EXPECT_FALSE(world.dialog->isModal());
}

TEST_F(CallDetailsEventsTest, CopyPutsEachFieldOnALineOfItsOwn) {
    world.log.append({.callID = "A4", .callerName = "Anna", .details = "one\r\ntwo"});
    world.announce("A4");
    click("cmdCopy");
    EXPECT_EQ(world.clipboard.cleared, 1);
    EXPECT_EQ(world.clipboard.text, "Date:\t" + world.control<QLabel>("lblDate").text().toStdString() +
                                        "\r\nCall ID:\tA4\r\nCaller:\t+4930123456 - Anna\r\n"
                                        "Message:\t12 s\r\nDetails\r\none\r\ntwo\r\n");
}

TEST_F(CallDetailsEventsTest, CopyAfterTheEmptyStateHasCaptionsAndEmptyValues) {
    world.announce("A1");
    world.announce("-1");
    click("cmdCopy");
    EXPECT_EQ(world.clipboard.text, "Date:\t\r\nCall ID:\t\r\nCaller:\t\r\nMessage:\t\r\nDetails\r\n\r\n");
}

TEST_F(CallDetailsEventsTest, ClipboardThatIsHeldIsReportedAndKeepsItsText) {
    world.clipboard.isLocked = true;
    click("cmdCopy");
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].procedure, "cmdCopy_Click");
    EXPECT_EQ(world.clipboard.text, "from before");
}

TEST_F(CallDetailsEventsTest, CallIDWithAnApostropheReachesTheErrorHandlerAndNothingElseHappens) {
    const std::string before = database();
    for (const char* callID :
         {"it's", "x'; DELETE FROM CallLog; --", "x' DELETE FROM CallLog WHERE 'a'='a"}) {
        errors.reports.clear();
        errors.answers = {ErrorAction::Ignore};
        world.announce("A1");
        world.announce(callID);
        ASSERT_EQ(errors.reports.size(), 1U) << callID;
        EXPECT_EQ(errors.reports[0].module, "frmCallDetails");
        EXPECT_EQ(errors.reports[0].procedure, "LoadData");
        EXPECT_EQ(errors.reports[0].number, basic::kProviderSyntax);
        EXPECT_TRUE(isEmptyState());
        EXPECT_EQ(shownCall(), "");
    }
    EXPECT_EQ(database(), before);
}

TEST_F(CallDetailsEventsTest, DatabaseThatIsGoneIsReported) {
    const auto connection = world.connect();
    std::filesystem::remove(world.log.path());
    world.selection.announce(connection, "A1");
    ASSERT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(errors.reports[0].procedure, "LoadData");
    EXPECT_EQ(shownCall(), "");
}

TEST_F(CallDetailsEventsTest, NewerCallWinsOverTheOneWhoseFailureIsBeingReported) {
    const auto closed = std::make_shared<jet::Connection>(world.engine);
    errors.answers = {ErrorAction::Retry};
    errors.onReport = [this] {
        errors.onReport = nullptr;
        world.announce("A3");
    };
    world.selection.announce(closed, "A1");
    EXPECT_EQ(errors.reports.size(), 1U);
    EXPECT_EQ(shownCall(), "A3");
    EXPECT_FALSE(isEmptyState());
}

TEST_F(CallDetailsEventsTest, MayBeLetGoWhileAFailureIsBeingReported) {
    const auto closed = std::make_shared<jet::Connection>(world.engine);
    const std::weak_ptr<frmCallDetails> dialog = world.dialog;
    errors.answers = {ErrorAction::Ignore};
    errors.onReport = [this, &dialog] {
        world.dialog->UnInit();
        world.dialog.reset();
        EXPECT_FALSE(dialog.expired());
    };
    world.selection.announce(closed, "A1");
    EXPECT_TRUE(dialog.expired());
}

} // namespace
} // namespace dialogs
