// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ways in which the program is ended, and what an open dialog sees of it.
#include "tests/app/MainWorld.h"

#include <QDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace app {
namespace {

class UnloadTest : public MainWorld {
protected:
    void SetUp() override {
        configure({12});
        mailbox(12).append(1);
        load();
        QObject::connect(&*window, &frmMain::unloaded, &*window, [this] { ++unloaded; });
    }
    void openDialog() {
        dialog.setModal(true);
        dialog.show();
    }

    int unloaded = 0;
    QDialog dialog;
};

TEST_F(UnloadTest, SessionEndUnloadsWithoutSavingOrAsking) {
    const std::string before = settingsFile();
    window->unload(UnloadMode::SessionEnd);
    EXPECT_EQ(unloaded, 1);
    EXPECT_TRUE(window->isUnloaded());
    EXPECT_EQ(window->state().config, nullptr);
    EXPECT_EQ(settingsFile(), before);
    EXPECT_TRUE(messageBoxes.boxes.empty());
}

TEST_F(UnloadTest, IsCarriedOutOnce) {
    window->unload(UnloadMode::SessionEnd);
    const std::size_t calls = notificationArea.messages.size();
    window->unload(UnloadMode::Code);
    EXPECT_EQ(unloaded, 1);
    EXPECT_EQ(notificationArea.messages.size(), calls);
}

TEST_F(UnloadTest, ConnectionThatDoesNotCloseIsReleasedAndNotReported) {
    window->showWindow();
    list().SetSelectedItem(list().ListItems().Item(1));
    window->ChangeItem();
    const auto connection = window->state().currentConnection;
    ASSERT_NE(connection, nullptr);
    connection->Close(); // a second time is an error
    window->unload(UnloadMode::Code);
    EXPECT_EQ(window->state().currentConnection, nullptr);
    EXPECT_TRUE(errorHandler.reports.empty());
}

// From then on nothing is reported any more.
TEST_F(UnloadTest, IsSaidToBeOverWhenWhatFailedInItIsReported) {
    notificationArea.failing = 2; // NIM_DELETE
    std::size_t reports = 0;
    QObject::connect(&*window, &frmMain::unloaded, [&] { reports = errorHandler.reports.size(); });
    window->unload(UnloadMode::Code);
    EXPECT_EQ(reports, 1U);
    notificationArea.failing.reset();
}

TEST_F(UnloadTest, UserOnlyHidesTheWindow) {
    window->showWindow();
    window->unload(UnloadMode::User);
    EXPECT_EQ(unloaded, 0);
    EXPECT_FALSE(window->isVisible());
    EXPECT_NE(window->state().config, nullptr);
}

TEST_F(UnloadTest, PopupGoesWithTheWindow) {
    mailbox(12).append(1);
    tick();
    ASSERT_NE(popup(), nullptr);
    window->unload(UnloadMode::Code);
    EXPECT_EQ(popup(), nullptr);
}

TEST_F(UnloadTest, AnOpenDialogIsAnsweredWithCancelBeforeTheExitTickUnloads) {
    openDialog();
    dialog.setResult(QDialog::Accepted);
    window->state().exitRequested = true;
    tick();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(unloaded, 0);
    tick();
    EXPECT_EQ(unloaded, 1);
}

TEST_F(UnloadTest, CloseInTheMenuAnswersAnOpenDialogAtOnce) {
    openDialog();
    notificationArea.menu->actions().last()->trigger();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(unloaded, 0);
}

// While a tick waits for dialogs, no other one comes, not even the exit tick. The procedures that go on may
// bring up further ones.
TEST_F(UnloadTest, CloseInTheMenuAnswersAllDialogsThatATickWaitsFor) {
    QDialog inner;
    QDialog next;
    const auto openInner = [&] {
        EXPECT_TRUE(dialog.isVisible());
        QTimer::singleShot(0, &inner, [&] { notificationArea.menu->actions().last()->trigger(); });
        inner.exec();
    };
    const auto waitForAll = [&] {
        QTimer::singleShot(0, &dialog, openInner);
        dialog.exec();
        next.exec();
        EXPECT_EQ(unloaded, 0);
    };
    QObject::connect(&window->timer(), &forms::Timer::ThatTime, &dialog, waitForAll,
                     Qt::SingleShotConnection);
    window->timer().SetInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return unloaded == 1; }));
}

TEST_F(UnloadTest, WithoutADialogThereIsNothingToAnswer) {
    EXPECT_FALSE(window->answerModalDialog());
}

} // namespace
} // namespace app
